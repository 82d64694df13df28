// What the program must never be slow at: a long ride, a long list.
#include <benchmark/benchmark.h>

#include <fstream>

#include "forms/whole_ride.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "rehearsal/rehearsals.h"
#include "support/simulated_program.h"

namespace {

constexpr int longList = 10'000;

std::vector<std::string> row(int number) {
  return model::loadedRow(number, "Longue (1/1)",
                          {"Plat", "80 à 90", "53", "17", "00:00:05", "", "132-75 %"});
}

void fill(platform::Grid& grid, int rows) {
  while (grid.rowCount() > 1) grid.removeRow(grid.rowCount());
  for (int number = 2; number <= rows; ++number) grid.addRow(row(number));
}

// Changes the last row, since an unchanged list is not gone through again.
void touch(platform::Grid& grid) {
  const std::string& cadence = grid.text(grid.rowCount(), model::column::cadence);
  grid.setText(grid.rowCount(), model::column::cadence, cadence == "60" ? "70" : "60");
}

// The program with its editor open and a list of that many rows.
struct Composing : support::SimulatedProgram {
  explicit Composing(int rows) {
    if (!start()) std::abort();
    run("press MainForm.mnCreat");
    fill(list(), rows);
    run("advance 2");
  }
};

// Rows of five minutes for as many minutes as the argument, every announcement on: a beginning and an end as
// the editor and the ride rehearse them, and nothing else.
void rehearseARide(benchmark::State& state) {
  support::SimulatedProgram program(support::settingsOn);
  if (!program.start()) std::abort();
  model::WholeRide ride{{}, forms::rideSettings(program.screens().main), {}};
  const model::PlanRow row{"00:05:00", "80 à 90", "", "Plat", "17", "53", "-----", ""};
  ride.order.sequences = static_cast<int>(state.range(0) / 5);
  ride.order.plan.rows.resize(1 + static_cast<std::size_t>(ride.order.sequences), row);
  rehearsal::Rehearsals rehearsals(program.memory, "/d");
  for (auto _ : state) {
    const model::Timeline timeline = rehearsals.whole(ride);
    if (timeline.rows.size() != ride.order.plan.rows.size() - 1)
      state.SkipWithError("the ride has not ended");
  }
}
BENCHMARK(rehearseARide)->Unit(benchmark::kMillisecond)->Arg(5)->Arg(60)->Arg(24 * 60);

void loadALongSession(benchmark::State& state) {
  Composing program(longList + 1);
  model::ecrireSeance(program.memory, "/d/Longue.tq2", program.list());
  for (auto _ : state) {
    state.PauseTiming();
    fill(program.list(), 1);
    program.run("advance 0.01");
    state.ResumeTiming();
    model::ajouterSeance(program.memory, "/d/Longue.tq2", program.list());
  }
}
BENCHMARK(loadALongSession)->Unit(benchmark::kMillisecond)->Iterations(10);

void checkUnfinishedRows(benchmark::State& state) {
  Composing program(longList);
  for (auto _ : state) {
    touch(program.list());
    program.screens().editor.Timer6.tick();
  }
}
BENCHMARK(checkUnfinishedRows)->Unit(benchmark::kMillisecond);

void sumTheTotal(benchmark::State& state) {
  Composing program(longList);
  for (auto _ : state) {
    touch(program.list());
    program.screens().editor.Timer4.tick();
  }
}
BENCHMARK(sumTheTotal)->Unit(benchmark::kMillisecond);

// All the editor's timers, with a cell being edited and the pointer over the list.
void aMinuteOfTheEditor(benchmark::State& state) {
  Composing program(longList);
  program.run("cell CreerCycle.ListView1 9000 5");
  program.screens().editor.Timer4.enabled = true;
  for (auto _ : state) program.run("advance 60");
}
BENCHMARK(aMinuteOfTheEditor)->Unit(benchmark::kMillisecond)->Iterations(3);

void editACell(benchmark::State& state) {
  Composing program(longList);
  int turn = 0;
  for (auto _ : state) {
    program.run("cell CreerCycle.ListView1 9000 5");
    program.run(++turn % 2 == 0 ? "pick CreerCycle.Combo1 60" : "pick CreerCycle.Combo1 70");
    program.run("advance 0.002");
  }
}
BENCHMARK(editACell)->Unit(benchmark::kMillisecond)->Iterations(200);

void appendRows(benchmark::State& state) {
  Composing program(2);
  for (auto _ : state) {
    for (int number = 0; number < 1000; ++number) {
      program.run("press CreerCycle.MyButton1");
      const int last = program.list().rowCount();
      program.list().setText(last, model::column::sequence, "Plat");
      program.list().setText(last, model::column::duration, "00:00:05");
    }
  }
}
BENCHMARK(appendRows)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
