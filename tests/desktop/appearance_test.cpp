// Dark and light windows, and how they follow the desktop's wishes while they run.
#include <gmock/gmock.h>

#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

#include "desktop/desktop_wishes.h"
#include "desktop/private_bus.h"
#include "desktop/windows.h"
#include "support/simulated_program.h"

namespace desktop {

using widgets::ThemeMode;

namespace {

using Settings = QMap<QString, QVariantMap>;

constexpr auto portalPath = "/org/freedesktop/portal/desktop";

TEST(DesktopWishes, IsReadAtTheStartAndFollowed) {
  qDBusRegisterMetaType<Settings>();
  const Settings settings{{"org.freedesktop.appearance", {{"color-scheme", 2U}}},
                          {"org.gnome.desktop.interface", {{"enable-animations", false}}}};
  PrivateBus own([&](const QDBusMessage&) { return QVariantList{QVariant::fromValue(settings)}; });
  const QDBusConnection portal = own.startService("org.freedesktop.portal.Desktop", portalPath);

  const DesktopWishes wishes(own.rider());
  EXPECT_EQ(wishes.colours(), ThemeMode::Light);
  EXPECT_FALSE(wishes.animations());

  QSignalSpy changed(&wishes, &DesktopWishes::changed);
  QDBusMessage signal =
      QDBusMessage::createSignal(portalPath, "org.freedesktop.portal.Settings", "SettingChanged");
  signal << "org.freedesktop.appearance"
         << "color-scheme" << QVariant::fromValue(QDBusVariant(1U));
  portal.send(signal);
  EXPECT_TRUE(changed.wait(5000));
  EXPECT_EQ(wishes.colours(), ThemeMode::Dark);
}

TEST(DesktopWishes, AsksNothingWithoutAPortal) {
  const DesktopWishes wishes(QDBusConnection("nowhere"));
  EXPECT_EQ(wishes.colours(), std::nullopt);
  EXPECT_TRUE(wishes.animations());
}

TEST(Appearance, TheRidersChoiceGoesBeforeTheDesktops) {
  using Choice = Appearance::Choice;
  Appearance appearance(ThemeMode::Dark);
  QSignalSpy changed(&appearance, &Appearance::changed);
  appearance.setSystem(ThemeMode::Light);
  EXPECT_EQ(appearance.mode(), ThemeMode::Light);
  appearance.choose(Choice::Light);
  appearance.setSystem(ThemeMode::Dark);
  EXPECT_EQ(appearance.mode(), ThemeMode::Light);
  EXPECT_EQ(changed.size(), 1);
  appearance.choose(Choice::System);
  EXPECT_EQ(appearance.mode(), ThemeMode::Dark);
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

// No pixel keeps a colour of the theme before, tried with the editor and its list open.
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
