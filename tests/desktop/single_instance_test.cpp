#include "desktop/single_instance.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <array>
#include <memory>

namespace desktop {
namespace {

QString fileIn(const QTemporaryDir& folder) {
  QFile file(folder.filePath(QStringLiteral("d'été « 2 ».tq2")));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  return file.fileName();
}

TEST(SingleInstance, ASecondProgramOfTheSameFolderWakesTheFirst) {
  const QTemporaryDir folder;
  const QTemporaryDir otherFolder;
  QStringList heard;
  auto first = std::make_unique<SingleInstance>(folder.path(), [&](const QString& text) { heard += text; });
  ASSERT_TRUE(first->first());

  const auto never = [](const QString&) { FAIL() << "only the first is woken"; };
  const SingleInstance second(folder.path() + "/.", never);
  const SingleInstance elsewhere(otherFolder.path(), never);
  EXPECT_FALSE(second.first());
  EXPECT_TRUE(elsewhere.first());
  const QString path = fileIn(folder);
  EXPECT_TRUE(second.wakeFirst());
  EXPECT_TRUE(second.wakeFirst(path));
  while (heard.size() < 2) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(heard, QStringList({QString(), path}));

  first.reset();
  EXPECT_FALSE(second.wakeFirst());
  EXPECT_TRUE(SingleInstance(folder.path(), never).first());
}

bool reachedByOthers(const QString& path) {
  const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  return (QFileInfo(path).permissions() & others) != QFile::Permissions();
}

// The folders of the session and of passing files, for as long as it lives.
class Surroundings {
 public:
  Surroundings(const QString& runtime, const QString& temporary) {
    qputenv("XDG_RUNTIME_DIR", runtime.toUtf8());
    qputenv("TMPDIR", temporary.toUtf8());
  }
  ~Surroundings() {
    for (const auto& [name, value] : before_) value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;

 private:
  static std::pair<const char*, QByteArray> kept(const char* name) { return {name, qgetenv(name)}; }
  const std::array<std::pair<const char*, QByteArray>, 2> before_{kept("XDG_RUNTIME_DIR"), kept("TMPDIR")};
};

TEST(SingleInstance, ListensWhereItsUserAloneCanReachIt) {
  const QTemporaryDir folder;
  const QTemporaryDir runtime;
  const QTemporaryDir temporary;
  const Surroundings surroundings(runtime.path(), temporary.path());
  QStringList places;
  for (bool more = true; more;) {
    const SingleInstance program(folder.path(), [](const QString&) {});
    EXPECT_TRUE(program.first());
    more = !program.address().isEmpty();
    if (!more) break;
    places += QFileInfo(program.address()).path();
    ASSERT_LT(places.size(), 5);
    EXPECT_FALSE(reachedByOthers(places.back()));
    EXPECT_TRUE(QFileInfo::exists(program.address()));
    EXPECT_FALSE(reachedByOthers(program.address()));
    // As somebody else may have made it before; Qt then looks for another one.
    QFile::setPermissions(places.back(), QFile::Permissions(0x7777));
  }
  EXPECT_EQ(places.value(0), runtime.path());
}

// Whoever can reach the socket says this and that; then a real second program comes.
TEST(SingleInstance, TakesAShortPathThatExistsAndWaitsForNobody) {
  const QTemporaryDir folder;
  QStringList heard;
  const SingleInstance first(folder.path(), [&](const QString& text) { heard += text; });
  const QString path = fileIn(folder);
  const QString pipe = folder.filePath(QStringLiteral("pipe"));
  ASSERT_EQ(mkfifo(pipe.toUtf8().constData(), 0600), 0);
  const auto say = [&](QLocalSocket& sender, const QByteArray& text) {
    sender.connectToServer(first.address());
    ASSERT_TRUE(sender.waitForConnected());
    sender.write(text);
    sender.flush();
  };
  const auto serveUntil = [](const auto& so) {
    while (!so()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  };

  QLocalSocket silent;
  say(silent, path.toUtf8());  // and stays
  QLocalSocket tooMuch;
  say(tooMuch, QByteArray(4097, '/'));
  tooMuch.disconnectFromServer();
  for (const QByteArray& text : {QByteArray("/nowhere/x.tq2"), QByteArray("x.tq2"), pipe.toUtf8(),
                                 folder.path().toUtf8(), path.toUtf8()}) {
    QLocalSocket sender;
    say(sender, text);
    sender.disconnectFromServer();
    const auto before = heard.size();
    serveUntil([&] { return heard.size() > before; });
    EXPECT_EQ(heard.back(), text == path.toUtf8() ? path : QString()) << text.constData();
  }
  for (const QLocalSocket* sender : {&tooMuch, &silent})
    serveUntil([&] { return sender->state() == QLocalSocket::UnconnectedState; });
  EXPECT_EQ(heard.size(), 5);
}

}  // namespace
}  // namespace desktop
