// Several rows at once, where a scenario does not reach: what any program may have copied, and the limits.
#include <gmock/gmock.h>

#include "editor/row_text.h"
#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/time_value.h"
#include "support/simulated_program.h"

namespace {

namespace column = model::column;
using testing::HasSubstr;

TEST(RowText, TakesWhatCanBeTypedAndNamesTheRest) {
  const std::string wide(51, 'x');
  for (const auto& [text, rows, refused] : {std::tuple{std::string("Sprint\r\nRepos\rPlat"), 3U, 0U},
                                            {"\n \t \n\t\t\n", 0U, 0U},
                                            {"-----\t-----\n----------------\n", 0U, 1U},
                                            {"Repos\t\t\t\t0:01:30", 1U, 0U},
                                            {"Repos\t\t\t\t10:00", 1U, 1U},
                                            {wide + "\t" + wide, 0U, 2U},
                                            {std::string("Rep\0os", 6) + "\t60", 1U, 1U},
                                            {std::string(100'000, '\t') + "x\n", 0U, 1U},
                                            {std::string(1'000'000, 'y'), 0U, 1U}}) {
    const editor::ReadRows read = editor::readRows(text);
    EXPECT_EQ(read.rows.size(), rows) << text.substr(0, 60);
    EXPECT_EQ(read.refusedCount, refused) << text.substr(0, 60);
    EXPECT_LE(editor::linesIn(text), 3);
  }
  std::string many;
  for (int i = 0; i < 200; ++i) many += "Repos\t\t\t\tx\n";
  EXPECT_EQ(editor::readRows(many).refused.size(), 10U);
}

TEST(TypedValues, AreFoundByTheirBeginningAndFilledFromTheRight) {
  const std::vector<std::string> lines{" ", "Accélération", "Echauffement", "Récupération",
                                       "Retour au Calme"};
  for (const auto& [typed, line] : {std::pair{"acce", 1}, {"É", 2}, {"re", 3}, {"ret", 4}, {"RÉC", 3}})
    EXPECT_EQ(model::lineBeginningWith(lines, typed), line) << typed;
  EXPECT_FALSE(model::lineBeginningWith(lines, "z"));
  for (const auto& [digits, duration] : {std::pair{"3", "00:00:03"},
                                         {"530", "00:05:30"},
                                         {"90", "00:01:30"},
                                         {"235959", "23:59:59"},
                                         {"6000", "01:00:00"}})
    EXPECT_EQ(model::durationOfDigits(digits), duration);
  for (const char* none : {"", "240000", "1234567", "1x"})
    EXPECT_FALSE(model::durationOfDigits(none)) << none;
}

class RowCommandsTest : public testing::Test, protected support::SimulatedProgram {
 protected:
  RowCommandsTest() {
    EXPECT_TRUE(start());
    run(support::composeTwoRows("Sprint", "30", "Repos", "20"));
  }
  std::string kinds() {
    std::string all;
    for (int row = 2; row <= list().rowCount(); ++row) all += list().text(row, column::sequence).substr(0, 1);
    return all;
  }
};

TEST_F(RowCommandsTest, AListTakesNoMoreThanAFileCanHold) {
  std::string many;
  for (int i = 0; i < 14'399; ++i) many += "Plat\\t\\t\\t\\t0:01:00\\n";
  run("clipboard " + many + "\nselect CreerCycle.ListView1 2\npress CreerCycle.mnPasteRows");
  EXPECT_EQ(list().rowCount(), 14'402);
  run("advance 1\npress CreerCycle.mnPasteRows");
  EXPECT_EQ(list().rowCount(), 28'801);
  for (const char* more : {"mnPasteRows", "mnDuplicateRows"}) {
    run("journal\npress CreerCycle." + std::string(more));
    EXPECT_THAT(run("journal dialog"), HasSubstr("La liste serait trop longue")) << more;
    EXPECT_EQ(list().rowCount(), 28'801);
  }
  run("advance 1\npress CreerCycle.mnUndo\npress CreerCycle.mnUndo");
  EXPECT_EQ(kinds(), "SR");
}

// Rows dropped before a place: those that stood apart come together, and none comes above the second.
TEST_F(RowCommandsTest, DroppedRowsStandWhereTheyWereDropped) {
  run("clipboard Assis\\nDanseuse\\nForce\nselect CreerCycle.ListView1 3\npress CreerCycle.mnPasteRows\nadvance 1");
  ASSERT_EQ(kinds(), "SRADF");
  for (const auto& [selected, before, order, now] : {std::tuple{"3", 2, "RSADF", "2\t2\n"},
                                                     {"2,4", 7, "RDFSA", "5,6\t6\n"},
                                                     {"2,4", 1, "SARDF", "2,3\t3\n"},
                                                     {"3-4", 4, "SRADF", "3,4\t4\n"},
                                                     {"1", 4, "SRADF", "1\t1\n"}}) {
    run(std::string("select CreerCycle.ListView1 ") + selected);
    loop().guard([&, place = before] { list().rowsDropped(place); });
    run("advance 1");
    EXPECT_EQ(kinds(), order) << selected << " before " << before;
    EXPECT_EQ(run("selection CreerCycle.ListView1"), now);
    if (screens().editor.mnUndo.enabled && kinds() != "SRADF") run("press CreerCycle.mnUndo\nadvance 1");
    EXPECT_EQ(kinds(), "SRADF");
  }
}

TEST_F(RowCommandsTest, ASelectionFollowsItsRows) {
  platform::Grid& grid = list();
  run("clipboard Assis\\nDanseuse\\nForce\nselect CreerCycle.ListView1 3\npress CreerCycle.mnPasteRows");
  using Rows = std::vector<int>;
  grid.select(3);
  grid.extendSelection(5);
  EXPECT_EQ(grid.selectedRows(), (Rows{3, 4, 5}));
  grid.extendSelection(2);
  EXPECT_EQ(grid.selectedRows(), (Rows{2, 3}));
  grid.toggleSelected(6);
  grid.toggleSelected(2);
  EXPECT_EQ(grid.selectedRows(), (Rows{3, 6}));
  grid.carryTo(4);
  EXPECT_EQ(grid.selectedRows(), (Rows{3, 6}));
  EXPECT_EQ(grid.selectedRow(), 4);
  grid.removeRow(2);
  grid.insertRow(3, {});
  EXPECT_EQ(grid.selectedRows(), (Rows{2, 6}));
  grid.removeRow(2);
  grid.removeRow(5);
  EXPECT_EQ(grid.selectedRows(), Rows{grid.selectedRow()});
}

TEST_F(RowCommandsTest, WhatNobodyCanDoIsRefused) {
  for (const auto& [command, told] : {std::pair{"select CreerCycle.ListView1 3-", "error: "},
                                      {"select CreerCycle.ListView1 2-9", "error: "},
                                      {"select CreerCycle.ListView1 3-2", "error: "},
                                      {"key CreerCycle.ListView1 Ctrl+Q", "error: "},
                                      {"key CreerCycle.Combo6 Ctrl+A", "error: "},
                                      {"select EnrUneAnnonce.ListView1 1-2", "refused: hidden"},
                                      {"answer 100\npress CreerCycle.mnRepeatRows", "error: the dialog"}}) {
    EXPECT_THAT(attempt(command), HasSubstr(told)) << command;
  }
  EXPECT_EQ(kinds(), "SR");
}

// Whatever a rider has open, and while a sound or a wait holds the program up.
TEST_F(RowCommandsTest, CommandsComeAtAnyMoment) {
  run("answer missing.tq2\nat 0 press CreerCycle.mnDuplicateRows\ncell CreerCycle.ListView1 3 4\nadvance 0.1");
  EXPECT_EQ(kinds(), "SRR");
  run("cell CreerCycle.ListView1 2 4\nkey CreerCycle.ListView1 Alt+Down\nadvance 1");
  EXPECT_EQ(kinds(), "RSR");
  EXPECT_FALSE(screens().editor.Combo1.visible);
  run("press CreerCycle.MyButton25\nkey CreerCycle.ListView1 Ctrl+X");
  EXPECT_EQ(kinds(), "RR");
}

}  // namespace
