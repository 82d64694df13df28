// The advice about the sound on the program's own windows, while other programs turn the machine's volume;
// run under with-sound-server.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <cstdlib>

#include "desktop/desktop_program.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::fromQt;
using widgets::ThemeMode;
using widgets::toQt;

namespace {

void pactl(const char* words) {
  ASSERT_EQ(std::system((std::string("pactl ") + words).c_str()), 0) << words;
}

template <class Widget>
Widget& widget(const char* form, const char* name) {
  for (QWidget* page : QApplication::allWidgets()) {
    auto* found =
        page->objectName() == QLatin1String(form) ? page->findChild<Widget*>(QLatin1String(name)) : nullptr;
    if (found != nullptr) return *found;
  }
  throw std::out_of_range(name);
}

TEST(VolumeAdvice, FollowsWhatOtherProgramsDoToTheMachine) {
  ASSERT_NE(std::getenv("SOUND_SERVER_PID_FILE"), nullptr) << "not under with-sound-server";
  static int count = 1;
  static char name[] = "ventoria";
  static std::array<char*, 2> words{name, nullptr};
  const QApplication application(count, words.data());
  QApplication::setQuitOnLastWindowClosed(false);
  const QTemporaryDir folder;
  pactl("set-default-sink test_out");
  pactl("set-sink-mute test_out 0");
  pactl("set-sink-volume test_mic 20%");
  DesktopProgram program(fromQt(folder.path()), ThemeMode::Dark);
  ASSERT_TRUE(program.start());
  widget<QAction>("MainForm", "mnVolume").trigger();

  struct Seen {
    const char* elsewhere;  // what another program does
    const char* advice;
    const char* sound;
    int percent;
  };
  const char* on = "Le (Son) est Activé.";
  const auto& slider = widget<QSlider>("VolumeGeneral", "VScroll1");
  for (const Seen& row : {Seen{"set-sink-volume test_out 80%", "satisfaisant", on, 80},
                          {"set-sink-volume test_out 35%", "insuffisant", on, 35},
                          {"set-sink-volume test_out 95%", "un peu fort", on, 95},
                          {"set-sink-mute test_out 1", "un peu fort", "Mais le (Son) est Désactivé.", 95},
                          {"set-sink-mute test_out 0", "un peu fort", on, 95},
                          // The dialog keeps its device until it is opened again.
                          {"set-default-sink test_mic", "un peu fort", on, 95}}) {
    pactl(row.elsewhere);
    const QString advice = toQt("Le Volume de votre (Son) semble " + std::string(row.advice) + "...");
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return widget<QLabel>("MainForm", "Label36").text() == advice &&
             widget<QLabel>("VolumeGeneral", "advice").text() == advice &&
             widget<QLabel>("MainForm", "Label34").text() == toQt(row.sound) && slider.value() == row.percent;
    })) << row.elsewhere
        << ": " << fromQt(widget<QLabel>("MainForm", "Label36").text());
  }
  widget<QPushButton>("VolumeGeneral", "MyButton7").click();
  widget<QAction>("MainForm", "mnVolume").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return slider.value() == 20; }));
  EXPECT_EQ(fromQt(widget<QLabel>("VolumeGeneral", "Lbl_SoundCard1").text()), "Nombre de cartes : '1'");
  pactl("set-default-sink test_out");
}

}  // namespace
}  // namespace desktop
