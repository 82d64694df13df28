// What the screens must never be slow at: a long list that is edited and scrolled, and the tick of a ride.
// Each measure ends when everything has been drawn.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>

#include "desktop/windows.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "support/simulated_program.h"
#include "widgets/grid_table.h"

namespace {

constexpr int longList = 10'000;

std::vector<std::string> row(int number) {
  const char* kind = number % 3 == 0 ? "Sprint" : number % 3 == 1 ? "Plat" : "Force 3";
  return model::loadedRow(number, "Longue (1/1)", {kind, "80 à 90", "53", "17", "00:00:05", "", "132-75 %"});
}

// The program in its windows, on a screen of that size, with a list of that many rows.
struct Screens : support::SimulatedProgram {
  Screens(int rows, const QSize& size) {
    if (!start()) std::abort();
    run("press MainForm.MyButton5");
    list().removeRow(2);  // the blank row of a new list
    for (int number = 2; number <= rows; ++number) list().addRow(row(number));
    run("advance 2");
    windows.emplace(program(), widgets::ThemeMode::Dark);
    windows->window().resize(size);
    windows->window().show();
    draw();
  }
  void draw() {
    windows->refresh();
    QCoreApplication::processEvents();
  }
  widgets::GridTable& table() {
    return *windows->page(screens().editor)->findChild<widgets::GridTable*>(QStringLiteral("ListView1"));
  }

  std::optional<desktop::Windows> windows;
};

const QSize fullHd(1920, 1080);

void editACell(benchmark::State& state) {
  Screens screens(longList, fullHd);
  int turn = 0;
  for (auto _ : state) {
    screens.run("cell CreerCycle.ListView1 9000 5");
    screens.run(++turn % 2 == 0 ? "pick CreerCycle.Combo1 60" : "pick CreerCycle.Combo1 70");
    screens.draw();
  }
}
BENCHMARK(editACell)->Unit(benchmark::kMillisecond);

void drawTheWholeList(benchmark::State& state) {
  Screens screens(longList, fullHd);
  for (auto _ : state) screens.table().viewport()->repaint();
}
BENCHMARK(drawTheWholeList)->Unit(benchmark::kMillisecond);

void scrollAPage(benchmark::State& state) {
  Screens screens(longList, fullHd);
  QScrollBar& bar = *screens.table().verticalScrollBar();
  for (auto _ : state) {
    bar.setValue(bar.value() + bar.pageStep() > bar.maximum() ? 0 : bar.value() + bar.pageStep());
    screens.draw();
  }
}
BENCHMARK(scrollAPage)->Unit(benchmark::kMillisecond);

// From a file, behind the list that is there.
void appendAThousandRows(benchmark::State& state) {
  Screens screens(1001, fullHd);
  model::ecrireSeance(screens.memory, "/d/Mille.tq2", screens.list());
  for (auto _ : state) {
    screens.run("answer /d/Mille.tq2\npress CreerCycle.MyButton4");
    screens.draw();
  }
}
BENCHMARK(appendAThousandRows)->Unit(benchmark::kMillisecond)->Iterations(9);

void tickOfARide(benchmark::State& state) {
  Screens screens(200, fullHd);
  screens.run("cell CreerCycle.ListView1 1 10\nadvance 1\npress CreerCycle.MyButton5\nadvance 0.1");
  screens.run("press MainForm.MyButton3\nadvance 60");
  screens.draw();
  for (auto _ : state) {
    screens.run("advance 1");
    screens.draw();
  }
  if (screens.screens().main.MyButton1.caption != "Stop") state.SkipWithError("nobody rides");
}
BENCHMARK(tickOfARide)->Unit(benchmark::kMillisecond)->Iterations(600);

}  // namespace

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, words);
  benchmark::Initialize(&count, words);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
