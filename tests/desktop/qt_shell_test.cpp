#include "desktop/qt_shell.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include "desktop/qt_dialogs.h"
#include "widgets/qt_text.h"

namespace desktop {
namespace {

// The desktop, as far as QtShell hands something over to it.
class Desktop final : public QObject {
  Q_OBJECT
 public:
  Desktop() {
    for (const QString& scheme : schemes_) QDesktopServices::setUrlHandler(scheme, this, "take");
  }
  ~Desktop() override {
    for (const QString& scheme : schemes_) QDesktopServices::unsetUrlHandler(scheme);
  }
  Q_INVOKABLE void take(const QUrl& url) { taken = url; }
  // What a program gets that Qt starts with it.
  [[nodiscard]] QStringList arguments() const {
    return QProcess::splitCommand(QStringLiteral("open ") + QString::fromLatin1(taken.toEncoded())).mid(1);
  }

  QUrl taken;

 private:
  const QStringList schemes_{QStringLiteral("file"), QStringLiteral("https")};
};

TEST(QtShell, HandsOverWhatItIsGivenAsOneArgument) {
  Desktop taker;
  QtDialogs dialogs([]() -> QWidget* { return nullptr; });
  QtShell shell(dialogs);
  for (const char* path : {"/v/l'été \"2\" ; touch x.avi", "/v/$(touch x) `x` %41 #1 ?a=b.avi",
                           "/v/-x\n&.avi", "/v/https:\\\\a\t.avi"}) {
    shell.openFile(path);
    EXPECT_EQ(widgets::fromQt(taker.taken.toLocalFile()), path);
    EXPECT_EQ(taker.arguments(), QStringList(QString::fromLatin1(taker.taken.toEncoded())));
    EXPECT_FALSE(taker.arguments().constFirst().contains(u'\n'));
  }
  shell.openAddress("https://ventoria.example/a \"b\"; touch x");
  EXPECT_EQ(taker.taken.host(), QStringLiteral("ventoria.example"));
  EXPECT_EQ(taker.arguments().size(), 1);
}

}  // namespace
}  // namespace desktop

#include "qt_shell_test.moc"
