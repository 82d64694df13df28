#include <gmock/gmock.h>

#include "model/grid_rows.h"
#include "model/session_file.h"
#include "support/simulated_program.h"

namespace {

namespace column = model::column;
using Call = support::FaultyFileSystem::Call;

// Two finished rows, of five and of one seconds.
struct Editor : testing::Test {
  Editor() {
    EXPECT_TRUE(program.start());
    program.run("press MainForm.mnCreat\n" + row("2", "Plat", "05") + "press CreerCycle.MyButton1\n" +
                row("3", "Fond", "01") + "press CreerCycle.Command1");
  }
  static std::string row(const std::string& number, const std::string& kind, const std::string& seconds) {
    return "cell CreerCycle.ListView1 " + number + " 4\npick CreerCycle.Combo1 " + kind +
           "\ncell CreerCycle.ListView1 " + number + " 10\npick CreerCycle.Combo4 " + seconds + "\n";
  }
  support::SimulatedProgram program;
  forms::CreerCycle& form = program.screens().editor;
};

TEST_F(Editor, GoesWithItsRowAndEndsWhereAnotherIsSelected) {
  for (const auto& [col, box] :
       {std::pair<const char*, platform::Control*>{"5", &form.Combo1}, {"10", &form.Picture2}}) {
    program.run(std::string("cell CreerCycle.ListView1 2 ") + col);
    for (const auto& [first, shown] : {std::pair{3, false}, {1, true}}) {
      form.ListView1.setVisibleRows(first, 9);
      program.run("advance 0.01");
      EXPECT_EQ(box->visible, shown) << col << first;
    }
    form.ListView1.select(3);
    program.run("advance 0.01\npick CreerCycle.Combo1 60\npick CreerCycle.Combo4 59");
    EXPECT_FALSE(box->visible) << col;
    EXPECT_EQ(form.ListView1.text(3, column::duration), "00:00:01");
  }
}

TEST_F(Editor, AFullDiskAtAnyWriteKeepsTheListAndTellsWhatIsLost) {
  const std::string save = "answer a.tq2\nanswer ok\npress CreerCycle.Command6\njournal";
  for (const bool replacing : {false, true}) {
    if (replacing) program.memory.put("/d/chronodat/a.tq2", "9" + std::string(1349, ' '));
    for (const int write : {1, 2, 3}) {
      program.disk.failFrom(Call::Write, write);
      EXPECT_THAT(program.run(save),
                  testing::HasSubstr(replacing ? "en partie remplacée" : "disque insuffisant"));
      EXPECT_EQ(program.list().rowCount(), 3);
      EXPECT_EQ(model::lireEnTete(program.memory, "/d/chronodat/a.tq2").nbEnreg, replacing ? 9 : 0);
    }
  }
  program.disk.heal();
  program.run(save);
  EXPECT_EQ(program.list().rowCount(), 2);
}

}  // namespace
