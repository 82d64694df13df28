// What the program costs while a rider does not touch it: the desktop program rests or rides by its own
// buttons, and a plain player plays the same piece beside it. tools/measure-ride runs it at a sound server
// and on a screen of its own, each way in a process of its own.
//
//     ventoria-ride-cost launch PROGRAM
//     ventoria-ride-cost rest SECONDS
//     ventoria-ride-cost ride SECONDS SESSION.tq2
//     ventoria-ride-cost music SECONDS SESSION.tq2 MUSIC PLAYER [ARGUMENT...]
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

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
  passed.start();
  // A program at rest sends no event that would end the wait.
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, [] {});
  while (!done() && !passed.hasExpired(milliseconds)) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

void serveFor(int milliseconds) {
  serveUntil([] { return false; }, milliseconds);
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

// The number behind a word such as "Pss:", of all lines of a file below /proc that begin with it.
long figure(const QString& path, const char* word) {
  QFile file(path);
  long sum = 0;
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n')) {
    if (line.startsWith(word))
      sum += line.mid(static_cast<qsizetype>(qstrlen(word))).simplified().split(' ').value(0).toLong();
  }
  return sum;
}

// How often each thread has gone to sleep of its own accord, and so been woken.
std::map<QString, long> sleeps() {
  std::map<QString, long> all;
  const QDir tasks(QStringLiteral("/proc/self/task"));
  for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    all[task] = figure(tasks.filePath(task + QStringLiteral("/status")), "voluntary_ctxt_switches:");
  }
  return all;
}

QString nameOf(const QString& task) {
  QFile file(QStringLiteral("/proc/self/task/%1/comm").arg(task));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : task;
}

void measure(const char* what, int seconds, pid_t player) {
  const std::map<QString, long> before = sleeps();
  const double own = processorTime(getpid());
  const double others = player > 0 ? processorTime(player) : 0;
  serveFor(seconds * 1000);
  const double ownCost = 100 * (processorTime(getpid()) - own) / seconds;
  const double otherCost = player > 0 ? 100 * (processorTime(player) - others) / seconds : 0;
  double all = 0;
  QString threads;
  for (const auto& [task, count] : sleeps()) {
    const auto known = before.find(task);
    const double rate =
        static_cast<double>(count - (known != before.end() ? known->second : 0)) / std::max(1, seconds);
    all += rate;
    if (rate >= 0.1) threads += QStringLiteral(" %1 %2").arg(nameOf(task)).arg(rate, 0, 'f', 1);
  }
  const QString map = QStringLiteral("/proc/self/smaps_rollup");
  std::printf("%s: %.2f %% of a core, %.1f wake-ups/s (%s ), %.1f MB proportional, %.1f MB private\n", what,
              ownCost, all, threads.toUtf8().constData(), static_cast<double>(figure(map, "Pss:")) / 1000,
              static_cast<double>(figure(map, "Private_Dirty:") + figure(map, "Private_Clean:")) / 1000);
  if (player > 0) std::printf("the plain player: %.2f %% of a core\n", otherCost);
}

void ride(desktop::DesktopProgram& program, const QString& session, bool music) {
  if (music) {
    widget<QAction>("MainForm", "mnambiance").trigger();
    for (const char* name : {"Command8", "Check1", "MyButton11", "MyButton9"}) press("EnrUneAnnonce", name);
  }
  program.addSession(widgets::fromQt(session));
  press("CreerCycle", "MyButton5");
  const auto& startOrStop = widget<QPushButton>("MainForm", "MyButton1");
  serveUntil([&] { return startOrStop.text() == QLatin1String("Stop"); }, 10000);
  press("MainForm", "MyButton3");
}

// The program's folder, with the settings of a ride that speaks.
void prepare(const QTemporaryDir& folder) {
  QFile settings(folder.filePath(QStringLiteral("par.tq3")));
  if (!settings.open(QIODevice::WriteOnly)) throw std::runtime_error("no settings");
  settings.write("0111111111012 1               ");
}

int work(const QStringList& arguments) {
  const QString& way = arguments[1];
  const int seconds = arguments[2].toInt();
  const QTemporaryDir folder;
  prepare(folder);
  const bool music = way == QLatin1String("music");
  if (music) {
    QDir(folder.path()).mkdir(QStringLiteral("ambiances"));
    QFile::copy(arguments[4], folder.filePath(QStringLiteral("ambiances/musique.mp3")));
  }
  desktop::DesktopProgram program(widgets::fromQt(folder.path()), widgets::ThemeMode::Dark);
  if (!program.start()) return 1;
  QProcess player;
  if (way != QLatin1String("rest")) {
    ride(program, arguments[3], music);
    if (music) player.start(arguments[5], arguments.mid(6) << arguments[4]);
  }
  constexpr int untilItRuns = 30000;  // ms: the countdown and the first words; the advice at the start
  serveFor(untilItRuns);
  if (music && player.state() != QProcess::Running) throw std::runtime_error("the player does not play");
  measure(way.toUtf8().constData(), seconds, music ? static_cast<pid_t>(player.processId()) : 0);
  player.kill();
  player.waitForFinished();
  return 0;
}

// From the start of the program to its colours on the screen, ms.
double launch(const QString& program) {
  const QTemporaryDir folder;
  prepare(folder);
  QScreen& screen = *QGuiApplication::primaryScreen();
  const auto seen = [&] {
    return screen.grabWindow(0, 600, 60, 1, 1).toImage().pixelColor(0, 0) != QColor(Qt::black);
  };
  if (seen()) throw std::runtime_error("the screen is not empty");
  QProcess started;
  QElapsedTimer passed;
  passed.start();
  started.start(program, {QStringLiteral("--folder"), folder.path()});
  while (!seen() && passed.elapsed() < 10000) QThread::usleep(1000);
  const double taken = static_cast<double>(passed.nsecsElapsed()) / 1e6;
  started.kill();
  started.waitForFinished();
  while (seen()) QThread::msleep(10);
  return taken;
}

void launches(const QString& program) {
  launch(program);  // the first one reads the files
  std::vector<double> taken;
  constexpr int times = 15;
  while (taken.size() < times) taken.push_back(launch(program));
  std::sort(taken.begin(), taken.end());
  std::printf("launch to painted window: %.0f ms (%.0f to %.0f, %d times)\n", taken[times / 2], taken.front(),
              taken.back(), times);
}

}  // namespace

int main(int count, char** words) try {
  QApplication application(count, words);
  const QStringList arguments = QCoreApplication::arguments();
  const std::map<QString, qsizetype> needed{{QStringLiteral("launch"), 3},
                                            {QStringLiteral("rest"), 3},
                                            {QStringLiteral("ride"), 4},
                                            {QStringLiteral("music"), 6}};
  const auto way = needed.find(arguments.value(1));
  if (way == needed.end() || arguments.size() < way->second) {
    std::fputs(
        "ventoria-ride-cost launch PROGRAM | rest SECONDS | ride SECONDS SESSION.tq2 |\n"
        "                   music SECONDS SESSION.tq2 MUSIC PLAYER [ARGUMENT...]\n",
        stderr);
    return 2;
  }
  if (arguments[1] != QLatin1String("launch")) return work(arguments);
  launches(arguments[2]);
  return 0;
} catch (const std::exception& fault) {
  std::fputs((std::string("what was to be pressed is not there: ") + fault.what() + "\n").c_str(), stderr);
  return 1;
}
