// What a ride with music costs: the desktop program rides a session over a piece of music by its own buttons,
// and a plain player plays the same piece beside it. tools/measure-ride runs it at a sound server and on a
// screen of its own, in a window of 1920 x 1080.
//
//     ventoria-ride-cost SESSION.tq2 MUSIC SECONDS PLAYER [ARGUMENT...]
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdio>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <string>

#include "desktop/desktop_program.h"
#include "widgets/qt_text.h"

namespace {

template <class Widget>
Widget& widget(const char* form, const char* name) {
  for (QWidget* page : QApplication::allWidgets()) {
    if (page->objectName() != QLatin1String(form)) continue;
    if (auto* found = page->findChild<Widget*>(QLatin1String(name))) return *found;
  }
  throw std::out_of_range(name);
}

void serveUntil(const std::function<bool()>& done, int milliseconds) {
  QElapsedTimer passed;
  for (passed.start(); !done() && !passed.hasExpired(milliseconds);) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

void press(const char* form, const char* name) {
  auto& button = widget<QAbstractButton>(form, name);
  serveUntil([&] { return button.isVisible() && button.isEnabled(); }, 30000);
  button.click();
}

// Seconds of a processor that a process has taken.
double processorTime(pid_t process) {
  clockid_t clock{};
  timespec taken{};
  if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &taken) != 0) return 0;
  return static_cast<double>(taken.tv_sec) + static_cast<double>(taken.tv_nsec) / 1e9;
}

void ride(desktop::DesktopProgram& program, const QString& session) {
  widget<QAction>("MainForm", "mnambiance").trigger();
  for (const char* name : {"Command8", "Check1", "MyButton11", "MyButton9"}) press("EnrUneAnnonce", name);
  program.addSession(widgets::fromQt(session));
  press("CreerCycle", "MyButton5");
  const auto& startOrStop = widget<QPushButton>("MainForm", "MyButton1");
  serveUntil([&] { return startOrStop.text() == QLatin1String("Stop"); }, 10000);
  press("MainForm", "MyButton3");
}

}  // namespace

int main(int count, char** words) try {
  QApplication application(count, words);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 5) {
    std::fputs("ventoria-ride-cost SESSION.tq2 MUSIC SECONDS PLAYER [ARGUMENT...]\n", stderr);
    return 2;
  }
  const QTemporaryDir folder;
  QDir(folder.path()).mkdir(QStringLiteral("ambiances"));
  QFile::copy(arguments[2], folder.filePath(QStringLiteral("ambiances/musique.mp3")));
  QFile settings(folder.filePath(QStringLiteral("par.tq3")));
  if (!settings.open(QIODevice::WriteOnly)) return 1;
  settings.write("0111111111012 1               ");
  settings.close();

  constexpr int untilItRuns = 30000;  // ms: the countdown and the first words
  const int seconds = arguments[3].toInt();
  desktop::DesktopProgram program(widgets::fromQt(folder.path()), widgets::ThemeMode::Dark);
  if (!program.start()) return 1;
  widget<QWidget>("MainForm", "header").window()->resize(1920, 1080);
  ride(program, arguments[1]);
  QProcess player;
  player.start(arguments[4], arguments.mid(5) << arguments[2]);
  const auto never = [] { return false; };
  serveUntil(never, untilItRuns);
  if (player.state() != QProcess::Running) {
    std::fputs("the player does not play\n", stderr);
    return 1;
  }

  const auto playerProcess = static_cast<pid_t>(player.processId());
  const double own = processorTime(getpid());
  const double others = processorTime(playerProcess);
  serveUntil(never, seconds * 1000);
  std::printf("the ride %.2f %% of a core, %s %.2f %%\n", 100 * (processorTime(getpid()) - own) / seconds,
              arguments[4].toUtf8().constData(), 100 * (processorTime(playerProcess) - others) / seconds);
  player.kill();
  player.waitForFinished();
  return 0;
} catch (const std::exception& fault) {
  std::fputs((std::string("what was to be pressed is not there: ") + fault.what() + "\n").c_str(), stderr);
  return 1;
}
