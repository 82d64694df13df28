// What the windows wear, and what they take from the desktop while they run.
#include <gmock/gmock.h>

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include "desktop/system_look.h"
#include "desktop/windows.h"
#include "support/simulated_program.h"

namespace desktop {
namespace {

using Settings = QMap<QString, QVariantMap>;

// A desktop's settings portal, on a bus of its own.
class FakePortal final : public QDBusVirtualObject {
 public:
  explicit FakePortal(Settings settings) : settings_(std::move(settings)) {}
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    return bus.send(message.createReply(QVariant::fromValue(settings_)));
  }

 private:
  Settings settings_;
};

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";

TEST(SystemLook, IsReadAtTheStartAndFollowed) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForReadyRead());
  const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
  qDBusRegisterMetaType<Settings>();
  FakePortal portal({{"org.freedesktop.appearance", {{"color-scheme", 2U}}},
                     {"org.gnome.desktop.interface", {{"enable-animations", false}}}});
  QThread answering;
  portal.moveToThread(&answering);
  answering.start();
  QDBusConnection bus = QDBusConnection::connectToBus(address, "portal");
  ASSERT_TRUE(bus.registerVirtualObject(path, &portal) && bus.registerService(service));

  const SystemLook look(QDBusConnection::connectToBus(address, "rider"));
  EXPECT_EQ(look.colours(), ThemeMode::Light);
  EXPECT_FALSE(look.animations());

  QSignalSpy changed(&look, &SystemLook::changed);
  QDBusMessage signal = QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
  signal << "org.freedesktop.appearance"
         << "color-scheme" << QVariant::fromValue(QDBusVariant(1U));
  bus.send(signal);
  EXPECT_TRUE(changed.wait(5000));
  EXPECT_EQ(look.colours(), ThemeMode::Dark);

  answering.quit();
  answering.wait();
  for (const char* name : {"portal", "rider"}) QDBusConnection::disconnectFromBus(name);
  daemon.kill();
  daemon.waitForFinished();
}

TEST(SystemLook, AsksNothingWithoutAPortal) {
  const SystemLook look(QDBusConnection("nowhere"));
  EXPECT_EQ(look.colours(), std::nullopt);
  EXPECT_TRUE(look.animations());
}

TEST(Appearance, TheRidersChoiceGoesBeforeTheDesktops) {
  using Choice = Appearance::Choice;
  Appearance look(ThemeMode::Dark);
  QSignalSpy changed(&look, &Appearance::changed);
  look.setSystem(ThemeMode::Light);
  EXPECT_EQ(look.mode(), ThemeMode::Light);
  look.choose(Choice::Light);
  look.setSystem(ThemeMode::Dark);
  EXPECT_EQ(look.mode(), ThemeMode::Light);
  EXPECT_EQ(changed.size(), 1);
  look.choose(Choice::System);
  EXPECT_EQ(look.mode(), ThemeMode::Dark);
  EXPECT_EQ(changed.size(), 2);
  for (const Choice choice : {Choice::System, Choice::Light, Choice::Dark}) {
    EXPECT_EQ(Appearance::fromWord(Appearance::word(choice)), choice);
  }
  EXPECT_EQ(Appearance::fromWord("rubbish"), Choice::System);
}

QImage pictureOf(support::SimulatedProgram& program, Windows& windows) {
  program.run("advance 1");
  windows.refresh();
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  return windows.window().grab().toImage();
}

// Nothing keeps a colour of the theme before: the editor with its list open, to the last pixel.
TEST(Windows, AChangedThemeLooksLikeOneFromTheStart) {
  const auto compose = [](support::SimulatedProgram& program) {
    ASSERT_TRUE(program.start());
    program.run("press MainForm.MyButton5\npress CreerCycle.MyButton1\ncell CreerCycle.ListView1 2 4");
  };
  QImage wanted;
  {
    support::SimulatedProgram program;
    compose(program);
    Windows windows(program.program(), ThemeMode::Light);
    windows.window().show();
    wanted = pictureOf(program, windows);
  }
  support::SimulatedProgram program;
  compose(program);
  Windows windows(program.program(), ThemeMode::Dark);
  windows.window().show();
  EXPECT_NE(pictureOf(program, windows), wanted);
  windows.appearance().choose(Appearance::Choice::Light);
  EXPECT_EQ(pictureOf(program, windows), wanted);
}

}  // namespace
}  // namespace desktop
