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

const std::string killServer = "kill -KILL $(cat $SOUND_SERVER_PID_FILE)";

void run(const std::string& words) {
  ASSERT_EQ(std::system(words.c_str()), 0) << words;
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
  run("pactl set-default-sink test_out");
  run("pactl set-sink-mute test_out 0");
  DesktopProgram program(fromQt(folder.path()), ThemeMode::Dark);
  ASSERT_TRUE(program.start());
  widget<QAction>("MainForm", "mnVolume").trigger();

  struct Seen {
    std::string elsewhere;  // what another program does
    const char* advice;
    const char* sound;
    int percent;
  };
  const char* on = "Le (Son) est Activé.";
  const auto& slider = widget<QSlider>("VolumeGeneral", "VScroll1");
  for (const Seen& row :
       {Seen{"pactl set-sink-volume test_out 80%", "satisfaisant", on, 80},
        {"pactl set-sink-volume test_out 35%", "insuffisant", on, 35},
        {"pactl set-sink-volume test_out 95%", "un peu fort", on, 95},
        {"pactl set-sink-mute test_out 1", "un peu fort", "Mais le (Son) est Désactivé.", 95},
        {"pactl set-sink-mute test_out 0", "un peu fort", on, 95},
        // The dialog keeps its device until it is opened again.
        {"pactl set-default-sink test_mic", "un peu fort", on, 95},
        // Another server begins at full volume.
        {killServer, "un peu fort", on, 100},
        {"pactl set-sink-volume test_out 35%", "insuffisant", on, 35}}) {
    run(row.elsewhere);
    const QString advice = toQt("Le Volume de votre (Son) semble " + std::string(row.advice) + "...");
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return widget<QLabel>("MainForm", "Label36").text() == advice &&
             widget<QLabel>("VolumeGeneral", "advice").text() == advice &&
             widget<QLabel>("MainForm", "Label34").text() == toQt(row.sound) && slider.value() == row.percent;
    })) << row.elsewhere
        << ": " << fromQt(widget<QLabel>("MainForm", "Label36").text());
  }
  run("pactl set-default-sink test_mic");
  run("pactl set-sink-volume test_mic 20%");
  widget<QPushButton>("VolumeGeneral", "MyButton7").click();
  widget<QAction>("MainForm", "mnVolume").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return slider.value() == 20; }));
  EXPECT_EQ(fromQt(widget<QLabel>("VolumeGeneral", "Lbl_SoundCard1").text()), "Nombre de cartes : '1'");
  run("pactl set-default-sink test_out");
}

}  // namespace
}  // namespace desktop
