#include "editor/history.h"

#include <gmock/gmock.h>

#include <random>

#include "forms/screens.h"
#include "model/grid_rows.h"
#include "platform/event_loop.h"

namespace {

using namespace std::chrono_literals;
namespace column = model::column;

using Texts = std::vector<std::vector<std::string>>;

// The history needs the grid and the loop alone.
class HistoryTest : public testing::Test {
 protected:
  HistoryTest() {
    screens_.editor.attach(loop_);
    screens_.editor.load();
    for (auto& made : model::gridColumns(false)) grid_.addColumn(made);
    grid_.addRow(model::firstRow());
    history_.forget();
  }
  void endStep() { loop_.runUntil(clock_.now() + 2ms); }
  Texts texts() const {
    Texts all;
    for (int row = 1; row <= grid_.rowCount(); ++row) {
      all.emplace_back();
      for (int c = 1; c <= grid_.columnCount(); ++c) all.back().push_back(grid_.text(row, c));
    }
    return all;
  }
  static std::vector<std::string> blankRow(int number) { return model::handMadeRow(number, "-----"); }

  platform::SimulatedClock clock_{platform::LocalTime{}};
  platform::EventLoop loop_{clock_};
  forms::Screens screens_;
  platform::Grid& grid_ = screens_.editor.ListView1;
  editor::History history_{screens_.editor};
};

TEST_F(HistoryTest, RandomStepsComeBackExactlyBothWays) {
  std::mt19937 random(7);
  const auto pick = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
  std::vector<Texts> states{texts()};
  for (int step = 0; step < 120; ++step) {
    for (int change = pick(1, 4); change > 0; --change) {
      switch (pick(0, 9)) {
        case 0:
          grid_.clearRows();
          grid_.addRow(model::firstRow());
          break;
        case 1:
        case 2:
          grid_.removeRow(pick(2, grid_.rowCount() + 1));
          break;
        case 3:
        case 4:
        case 5:
          grid_.insertRow(pick(2, grid_.rowCount() + 1), blankRow(step));
          break;
        default:
          grid_.setText(pick(1, grid_.rowCount()), pick(1, 13), "é" + std::to_string(pick(0, 5)));
      }
    }
    grid_.addRow(blankRow(step));  // so that every step changes something
    endStep();
    states.push_back(texts());
  }
  for (std::size_t i = states.size() - 1; i > 0; --i) {
    history_.undo();
    ASSERT_EQ(texts(), states[i - 1]) << i;
  }
  EXPECT_FALSE(screens_.editor.mnUndo.enabled);
  for (std::size_t i = 1; i < states.size(); ++i) {
    history_.redo();
    ASSERT_EQ(texts(), states[i]) << i;
  }
  EXPECT_FALSE(screens_.editor.mnRedo.enabled);
}

TEST_F(HistoryTest, TheTotalBelongsToTheEditBeforeItAndANewEditEndsRedoing) {
  grid_.addRow(blankRow(2));
  endStep();
  const Texts before = texts();
  grid_.setText(2, column::duration, "00:10:00");
  endStep();
  grid_.setText(1, column::duration, "00:10:00");
  endStep();
  screens_.editor.mnUndo.click();
  EXPECT_EQ(texts(), before);
  grid_.setText(2, column::sequence, "Sprint");
  endStep();
  screens_.editor.mnRedo.click();
  EXPECT_EQ(grid_.text(2, column::duration), "00:00:00");
  EXPECT_EQ(grid_.text(2, column::sequence), "Sprint");
}

}  // namespace
