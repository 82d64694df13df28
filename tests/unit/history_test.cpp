#include "editor/history.h"

#include <gmock/gmock.h>

#include <random>

#include "model/grid_rows.h"
#include "support/rig.h"

namespace {

namespace column = model::column;

using Texts = std::vector<std::vector<std::string>>;

// The history needs the list and the loop alone.
class HistoryTest : public testing::Test, protected support::Rig {
 protected:
  HistoryTest() {
    screens.editor.load();
    for (auto& made : model::gridColumns(false)) grid_.addColumn(made);
    grid_.addRow(model::firstRow());
    history_.clear();
  }
  Texts texts() const {
    Texts all;
    for (int row = 1; row <= grid_.rowCount(); ++row) {
      all.emplace_back();
      for (int c = 1; c <= grid_.columnCount(); ++c) all.back().push_back(grid_.text(row, c));
      if (row == 1) all.back().at(column::duration - 1).clear();  // the total follows by itself
    }
    return all;
  }
  static std::vector<std::string> blankRow(int number) { return model::handMadeRow(number, "-----"); }

  platform::Grid& grid_ = screens.editor.ListView1;
  editor::History history_{context};
};

TEST_F(HistoryTest, RandomStepsComeBackExactlyBothWays) {
  std::mt19937 random(7);
  const auto pick = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
  std::vector<Texts> states{texts()};
  for (int step = 0; step < 120; ++step) {
    for (int change = pick(1, 4); change > 0; --change) {
      const int kind = pick(0, 9);
      if (kind == 0) {
        grid_.clearRows();
        grid_.addRow(model::firstRow());
      } else if (kind <= 2) {
        grid_.removeRow(pick(2, grid_.rowCount() + 1));
      } else if (kind <= 5) {
        grid_.insertRow(pick(2, grid_.rowCount() + 1), blankRow(step));
      } else {
        grid_.setText(pick(1, grid_.rowCount()), pick(1, 13), "é" + std::to_string(pick(0, 5)));
      }
    }
    grid_.addRow(blankRow(step));  // so that every step changes something
    advance(2);
    states.push_back(texts());
  }
  for (std::size_t i = states.size() - 1; i > 0; --i) {
    history_.undo();
    ASSERT_EQ(texts(), states[i - 1]) << i;
  }
  EXPECT_FALSE(screens.editor.mnUndo.enabled);
  for (std::size_t i = 1; i < states.size(); ++i) {
    history_.redo();
    ASSERT_EQ(texts(), states[i]) << i;
  }
  EXPECT_FALSE(screens.editor.mnRedo.enabled);
}

TEST_F(HistoryTest, AStepIsWhatOneActionChangesHoweverLongItTakes) {
  const auto put = [&](const char* text) { grid_.setText(2, column::sequence, text); };
  using Case = std::tuple<const char*, std::function<void()>, bool>;
  for (const auto& [what, action, step] :
       {Case{"a question in its midst", [&] { put("Plat"), advance(500), put("Fond"); }, true},
        {"a refused pick", [&] { put("Sprint"), advance(500), put(" "); }, false},
        {"the same rows anew",
         [&] {
           grid_.clearRows();
           grid_.addRow(model::firstRow());
           grid_.addRow(blankRow(2));
         },
         false},
        {"words alone", [&] { screens.editor.Label8.caption = "Ventoria"; }, false},
        {"cycle mode", [&] { screens.editor.MyButton3.caption = "Annuler ce Cycle"; }, true}}) {
    grid_.clearRows();
    grid_.addRow(model::firstRow());
    grid_.addRow(blankRow(2));
    advance(2);
    history_.clear();
    loop.guard(action);
    advance(60);
    EXPECT_EQ(screens.editor.mnUndo.enabled, step) << what;
    screens.editor.mnUndo.click();
    EXPECT_EQ(grid_.text(2, column::sequence), " ") << what;
    EXPECT_EQ(screens.editor.MyButton3.caption, "Créer un Cycle") << what;
  }
}

TEST_F(HistoryTest, TwoActionsAtOneInstantAreTwoSteps) {
  grid_.addRow(blankRow(2));
  for (const char* kind : {"Plat", "Fond"}) loop.guard([&] { grid_.setText(2, column::sequence, kind); });
  history_.undo();
  EXPECT_EQ(grid_.text(2, column::sequence), "Plat");
  loop.guard([&] { grid_.setText(2, column::duration, "00:00:09"); });
  history_.redo();  // an edit has ended redoing
  EXPECT_EQ(grid_.text(2, column::sequence), "Plat");
}

}  // namespace
