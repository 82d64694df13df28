#include <gmock/gmock.h>

#include "model/grid_rows.h"
#include "model/session_file.h"
#include "support/session_bytes.h"
#include "support/simulated_program.h"

namespace {

namespace column = model::column;
using support::session;

// Two finished rows, of five and of one seconds.
struct Editor : testing::Test {
  Editor() {
    EXPECT_TRUE(program.start());
    program.run(support::composeTwoRows("Plat", "05", "Fond", "01") + "call CreerCycle.Command1");
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

TEST_F(Editor, ADurationTakesEntriesOfItsListsAloneHoweverItsBoxIsLeft) {
  const std::string enter = "key CreerCycle.Combo3 Enter\nadvance 0.2";
  const std::string elsewhere = "cell CreerCycle.ListView1 3 5";
  const std::string second = "pick CreerCycle.Combo4 05\nadvance 0.2";
  const std::string print = "press CreerCycle.mnImprim";
  const std::string start = "press CreerCycle.MyButton5";
  const struct {
    const char* typed;
    std::string leave;
    const char *duration, *total;
  } cases[]{{"75", enter, "00:00:05", "00:00:06"},   {"7", enter, "00:07:05", "00:07:06"},
            {"99", second, "00:07:05", "00:07:06"},  {"abc", elsewhere, "00:07:05", "00:07:06"},
            {"", elsewhere, "00:07:05", "00:07:06"}, {" 8", elsewhere, "00:08:05", "00:08:06"},
            {"60", print, "00:08:05", "00:08:06"},   {"9", start, "00:09:05", "00:09:06"}};
  for (const auto& c : cases) {
    program.run("cell CreerCycle.ListView1 2 10\nset CreerCycle.Combo3.text " + std::string(c.typed) + "\n" +
                c.leave);
    EXPECT_EQ(form.ListView1.text(2, column::duration), c.duration) << c.typed;
    EXPECT_EQ(form.ListView1.text(1, column::duration), c.total) << c.typed;
    EXPECT_EQ(form.ListView1.text(3, column::duration), "00:00:01");
  }
  EXPECT_EQ(program.state().plan.rows.at(1).planDuree, "00:09:05");
}

TEST_F(Editor, ATextThatIsNoDurationStaysOutOfThePlan) {
  for (const char* text : {"", "7", "00:75:31", "00:7:01", "1:2:3", "24:00:00", "bientôt", "-----"}) {
    program.list().setText(3, column::duration, text);
    program.list().setText(3, column::announcement, text == std::string("-----") ? " " : "-----");
    EXPECT_THAT(program.run("press CreerCycle.MyButton5\njournal dialog"), testing::HasSubstr("Ligne (3)"));
    EXPECT_TRUE(form.visible);
    EXPECT_EQ(program.state().nbSequences, 0);
    EXPECT_EQ(program.list().style(3, column::duration), model::row_style::unfinished) << text;
    EXPECT_EQ(program.list().selectedRow(), 3);
    EXPECT_FALSE(form.MyButton5.visible) << text;
    // Where the cell can be opened, the rider goes on by its duration boxes.
    program.list().setText(3, column::duration, text == std::string("-----") ? "00:00:00" : text);
    program.run(
        "cell CreerCycle.ListView1 3 10\npick CreerCycle.Combo4 01\ncall CreerCycle.Command1\nadvance 1");
    EXPECT_TRUE(form.MyButton5.visible) << text;
  }
  program.run("press CreerCycle.MyButton5");
  EXPECT_EQ(program.state().nbSequences, 2);
}

TEST_F(Editor, AFileThatEndsTooEarlyIsToldAndItsBlankRowsAreRed) {
  for (const auto& [records, told] : {std::pair{1, true}, {0, true}, {3, false}}) {
    program.memory.put("/d/chronodat/Court.tq2", session(3, records));
    const std::string said = program.run(
        "press CreerCycle.Command4\nanswer Court.tq2\npress CreerCycle.MyButton4\nadvance 1\njournal dialog");
    const std::string counts = "(3) Séquence(s), mais (" + std::to_string(records) + ")";
    EXPECT_EQ(said.find(counts) != std::string::npos, told) << said;
    ASSERT_EQ(program.list().rowCount(), 4);
    for (int row = 2; row <= 4; ++row) {
      EXPECT_EQ(program.list().style(row, column::sequence) == model::row_style::unfinished,
                row - 1 > records)
          << row;
    }
    EXPECT_NE(form.MyButton5.visible, told);
  }
}

TEST(EditorUndo, BringsBackTheListAndAllThatIsSaidOfIt) {
  const std::string load = "answer Court.tq2\npress CreerCycle.MyButton4\nadvance 1\n";
  const std::string cycle = "press CreerCycle.MyButton3\n";
  const std::string words =
      "get CreerCycle.Label8\nget CreerCycle.Label9\nget MainForm.MyFrame1\nget CreerCycle.MyButton3\n"
      "get CreerCycle.MyButton4\nvar seanceTitre\n";
  const std::string state = words + "rows CreerCycle.ListView1";
  for (const auto& [before, action] : std::initializer_list<std::pair<std::string, std::string>>{
           {load, "press CreerCycle.Command4"},
           {load, cycle},
           {load + cycle, cycle},
           {load, "press CreerCycle.MyButton1"},
           {cycle, load},
           {load, "answer a.tq2\npress CreerCycle.Command6"},
           {load, "cell CreerCycle.ListView1 3 12 right\npress CreerCycle.mnsupprim"},
           {load, "cell CreerCycle.ListView1 3 10\npick CreerCycle.Combo3 20"}}) {
    support::SimulatedProgram program;
    program.memory.put("/d/chronodat/Court.tq2", session(2, 2));
    ASSERT_TRUE(program.start());
    const auto width = [&] { return program.list().column(column::cycleName).width; };
    // A click on the total brings it up to date.
    const std::string summed = "\ncell CreerCycle.ListView1 1 10\nadvance 1\n" + state;
    const std::string was = program.run("press MainForm.mnCreat\n" + before + summed);
    const int wide = width();
    const std::string done = program.run(action + "\nadvance 0.01\n" + words);
    program.run("press CreerCycle.mnUndo");
    EXPECT_EQ(program.run(state), was) << action;
    EXPECT_EQ(width(), wide) << action;
    program.run("press CreerCycle.mnRedo");
    const std::string is = program.run(state);
    EXPECT_TRUE(is.starts_with(done)) << action << is << done;
    EXPECT_EQ(is, program.run(summed)) << action;
    EXPECT_NE(is, was) << action;
  }
}

TEST_F(Editor, WhatChangesNothingIsNoStepAndTheTotalIsExactAtOnce) {
  for (const char* action : {"press CreerCycle.MyButton3\npress CreerCycle.mnUndo",
                             "cell CreerCycle.ListView1 2 4\npick CreerCycle.Combo1 Plat",
                             "cell CreerCycle.ListView1 2 13\npick CreerCycle.Combo1 75 %"}) {
    program.run(std::string(action) + "\nadvance 0.01\npress CreerCycle.mnUndo");
    EXPECT_EQ(program.list().text(3, column::duration), "00:00:00") << action;
    program.run("press CreerCycle.mnRedo\nadvance 0.01");
  }
  // The total of two durations comes behind the second.
  const std::string pick = "cell CreerCycle.ListView1 3 10\npick CreerCycle.Combo3 ";
  program.run(pick + "20\ncell CreerCycle.ListView1 3 5\n" + pick +
              "30\nadvance 0.3\npress CreerCycle.mnUndo");
  EXPECT_EQ(program.list().text(1, column::duration), "00:20:06");
}

}  // namespace
