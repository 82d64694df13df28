// A rider with thousands of titles opens his library, ticks them all and takes one out.
#include <benchmark/benchmark.h>

#include "support/simulated_program.h"

namespace {

constexpr int titles = 5'000;

struct Library : support::SimulatedProgram {
  Library() {
    for (int i = 0; i < titles; ++i)
      memory.put("/d/ambiances/Ensemble - Titre " + std::to_string(i) + ".mp3", "");
    if (!start()) std::abort();
  }
};

void openALibrary(benchmark::State& state) {
  Library program;
  for (auto _ : state) {
    program.run("press MainForm.mnSelctMusiqPrefere\nadvance 0.01");
    state.PauseTiming();
    if (program.screens().announcements.ListView1.rowCount() != titles)
      state.SkipWithError("not all are listed");
    program.run("press EnrUneAnnonce.MyButton13\npress EnrUneAnnonce.MyButton9");
    state.ResumeTiming();
  }
}
BENCHMARK(openALibrary)->Unit(benchmark::kMillisecond);

void tickALibrary(benchmark::State& state) {
  Library program;
  program.run("press MainForm.mnSelctMusiqPrefere\nadvance 0.01");
  for (auto _ : state) program.run("press EnrUneAnnonce.Check1");
}
BENCHMARK(tickALibrary)->Unit(benchmark::kMillisecond);

void tickOneTitle(benchmark::State& state) {
  Library program;
  program.run("press MainForm.mnSelctMusiqPrefere\nadvance 0.01");
  int turn = 0;
  for (auto _ : state) program.run("checkrow EnrUneAnnonce.ListView1 4000 " + std::to_string(++turn % 2));
}
BENCHMARK(tickOneTitle)->Unit(benchmark::kMillisecond);

// From the first title to a ticked one at the end of the list.
void startTheSelection(benchmark::State& state) {
  Library program;
  program.run("press MainForm.mnSelctMusiqPrefere\nadvance 0.01\ncheckrow EnrUneAnnonce.ListView1 5000 1");
  for (auto _ : state) program.run("press EnrUneAnnonce.MyButton12\nadvance 0.01");
}
BENCHMARK(startTheSelection)->Unit(benchmark::kMillisecond);

}  // namespace
