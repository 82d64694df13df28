#include "editor/history.h"

#include <algorithm>
#include <ranges>

#include "model/grid_rows.h"

namespace editor {
namespace {

constexpr std::size_t mostSteps = 200;

namespace column = model::column;

}  // namespace

History::History(forms::CreerCycle& form) : form_(form), grid_(form.ListView1) {
  grid_.watchGrid([this](const platform::GridChange& change) { note(change); });
  form_.TimerUndoStep.tick.handle([this] { closeStep(); });
  form_.mnUndo.click.handle([this] { undo(); });
  form_.mnRedo.click.handle([this] { redo(); });
}

History::Cells History::cellsOf(int row) const {
  Cells cells;
  cells.reserve(static_cast<std::size_t>(grid_.columnCount()));
  for (int c = 1; c <= grid_.columnCount(); ++c) cells.push_back(grid_.text(row, c));
  return cells;
}

void History::note(const platform::GridChange& change) {
  using What = platform::GridChange::What;
  const auto at = static_cast<std::ptrdiff_t>(change.row - 1);
  switch (change.what) {
    case What::Text:
      noteText(change.row, change.column);
      break;
    case What::RowInserted:
      shadow_.insert(shadow_.begin() + at, cellsOf(change.row));
      open_.push_back({Kind::Insert, change.row, 0, shadow_[static_cast<std::size_t>(at)]});
      break;
    case What::RowRemoved:
      open_.push_back({Kind::Remove, change.row, 0, std::move(shadow_[static_cast<std::size_t>(at)])});
      shadow_.erase(shadow_.begin() + at);
      break;
    case What::Cleared:
      for (auto row = shadow_.size(); row > 0; --row) {
        open_.push_back({Kind::Remove, static_cast<int>(row), 0, std::move(shadow_[row - 1])});
      }
      shadow_.clear();
      break;
    default:
      return;
  }
  if (playing_) open_.clear();
  // A step ends when the handler that made it does: at the next look of a timer that is due at once.
  if (!open_.empty()) form_.TimerUndoStep.enabled = true;
}

void History::noteText(int row, int col) {
  std::string& before = shadow_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(col - 1)];
  const std::string& after = grid_.text(row, col);
  open_.push_back({Kind::Text, row, col, {before, after}});
  before = after;
}

void History::closeStep() {
  form_.TimerUndoStep.enabled = false;
  if (open_.empty()) return;
  // The total follows by itself, some time after what changed it: it belongs to that step.
  const bool totalAlone = std::all_of(open_.begin(), open_.end(), [](const Change& change) {
    return change.kind == Kind::Text && change.row == 1 && change.column == column::duration;
  });
  if (totalAlone) {
    if (!undo_.empty()) undo_.back().insert(undo_.back().end(), open_.begin(), open_.end());
  } else {
    undo_.push_back(std::move(open_));
    redo_.clear();
    if (undo_.size() > mostSteps) undo_.pop_front();
  }
  open_.clear();
  showWhatIsPossible();
}

void History::apply(const Change& change, bool backwards) {
  if (change.kind == Kind::Text) {
    grid_.setText(change.row, change.column, change.cells[backwards ? 0 : 1]);
    return;
  }
  if ((change.kind == Kind::Insert) == backwards) {
    grid_.removeRow(change.row);
    return;
  }
  grid_.insertRow(change.row, change.cells);
  const bool first = change.row == 1;
  grid_.setLook(change.row, first ? column::cycleName : column::sessionName,
                first ? column::duration : column::deleteMark,
                first ? model::look::firstRow : model::look::finished);
}

void History::play(std::deque<Step>& from, std::deque<Step>& to, bool backwards) {
  form_.Command1.click();
  closeStep();
  if (from.empty()) return;
  Step step = std::move(from.back());
  from.pop_back();
  playing_ = true;
  if (backwards) {
    for (const Change& change : std::views::reverse(step)) apply(change, true);
  } else {
    for (const Change& change : step) apply(change, false);
  }
  playing_ = false;
  to.push_back(std::move(step));
  showWhatIsPossible();
}

void History::undo() {
  play(undo_, redo_, true);
}
void History::redo() {
  play(redo_, undo_, false);
}

void History::forget() {
  open_.clear();
  undo_.clear();
  redo_.clear();
  showWhatIsPossible();
}

void History::showWhatIsPossible() {
  form_.mnUndo.enabled = !undo_.empty();
  form_.mnRedo.enabled = !redo_.empty();
}

}  // namespace editor
