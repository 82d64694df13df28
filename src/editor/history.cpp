#include "editor/history.h"

#include <algorithm>
#include <map>
#include <utility>

#include "editor/layout.h"
#include "model/grid_rows.h"

namespace editor {
namespace {

constexpr std::size_t mostSteps = 200;

namespace column = model::column;

// Places in Words: the captions of the two buttons that tell the cycle mode, then the session's title.
constexpr std::size_t firstOfCycleMode = 3;
constexpr std::size_t sessionTitle = 5;

constexpr int atOnce = 1;        // ms
constexpr int whileItRuns = 50;  // ms

bool changesTexts(platform::GridChange::What what) {
  using What = platform::GridChange::What;
  return what == What::Text || what == What::RowInserted || what == What::RowRemoved || what == What::Cleared;
}

}  // namespace

History::History(const context::Context& context)
    : loop_(context.loop),
      editor_(context.screens.editor),
      grid_(editor_.ListView1),
      state_(context.state),
      captions_(listCaptions(context.screens)) {
  grid_.watchGrid([this](const platform::GridChange& change) { recordChange(change); });
  for (platform::Component* captioned : std::initializer_list<platform::Component*>{
           &editor_.Label8, &editor_.Label9, &context.screens.main.MyFrame1, &editor_.MyButton3,
           &editor_.MyButton4}) {
    captioned->watch([this](platform::Component&, platform::Prop prop) {
      if (prop != platform::Prop::Caption) return;
      beginStep();
      wordsNow_ = words();
    });
  }
  editor_.TimerUndoStep.tick.handle([this] { endStep(); });
  editor_.mnUndo.click.handle([this] { undo(); });
  editor_.mnRedo.click.handle([this] { redo(); });
}

History::Words History::words() const {
  Words all;
  for (std::size_t i = 0; i < captions_.size(); ++i) all.at(i) = captions_.at(i)->get();
  all.at(sessionTitle) = state_.seanceTitre;
  return all;
}

// Changes that another action has left open become a step of their own.
void History::beginStep() {
  if (loop_.action() != action_) closeStep();
  action_ = loop_.action();
  editor_.TimerUndoStep.enabled = true;
}

// A step ends with the action that made it, even if that waits or asks the rider in between.
void History::endStep() {
  if (!loop_.runs(action_)) {
    closeStep();
    return;
  }
  if (!editor_.mnUndo.enabled) editor_.mnUndo.enabled = hasEffect();
  editor_.TimerUndoStep.interval = whileItRuns;
}

void History::recordChange(const platform::GridChange& change) {
  using What = platform::GridChange::What;
  const auto at = static_cast<std::ptrdiff_t>(change.row - 1);
  if (!changesTexts(change.what)) return;
  beginStep();
  switch (change.what) {
    case What::Text:
      recordText(change.row, change.column);
      break;
    case What::RowInserted:
      shadow_.insert(shadow_.begin() + at, grid_.cells(change.row));
      open_.push_back({Kind::Insert, change.row, 0, shadow_[static_cast<std::size_t>(at)]});
      break;
    case What::RowRemoved:
      open_.push_back({Kind::Remove, change.row, 0, std::move(shadow_[static_cast<std::size_t>(at)])});
      shadow_.erase(shadow_.begin() + at);
      break;
    default:  // cleared
      for (auto row = shadow_.size(); row > 0; --row) {
        open_.push_back({Kind::Remove, static_cast<int>(row), 0, std::move(shadow_[row - 1])});
      }
      shadow_.clear();
  }
  if (replaying_) open_.clear();
  wordsNow_.at(sessionTitle) = state_.seanceTitre;  // the captions are watched
}

void History::recordText(int row, int col) {
  Row& shadow = shadow_[static_cast<std::size_t>(row - 1)];
  const Row before = std::exchange(shadow, grid_.cells(row));
  // The total is summed by a timer some time after a change, so it belongs to no step.
  if (row == 1 && col == column::duration) return;
  const auto at = static_cast<std::size_t>(col - 1);
  open_.push_back({Kind::Text, row, col, std::make_shared<Cells>(Cells{(*before)[at], (*shadow)[at]})});
}

void History::closeStep() {
  editor_.TimerUndoStep.enabled = false;
  editor_.TimerUndoStep.interval = atOnce;
  if (hasEffect()) {
    undo_.push_back({std::move(open_), wordsBefore_, wordsNow_});
    redo_.clear();
    if (undo_.size() > mostSteps) undo_.pop_front();
  }
  open_.clear();
  wordsBefore_ = wordsNow_;
  enableMenuEntries();
}

// A change of captions alone is no step, unless it is the cycle mode that changed.
bool History::hasEffect() const {
  for (std::size_t i = firstOfCycleMode; i < sessionTitle; ++i) {
    if (wordsBefore_.at(i) != wordsNow_.at(i)) return true;
  }
  const auto inserted = std::ranges::count(open_, Kind::Insert, &Change::kind);
  if (inserted != std::ranges::count(open_, Kind::Remove, &Change::kind)) return true;
  return inserted == 0 ? textsDiffer() : rowsDiffer();
}

bool History::textsDiffer() const {
  std::map<std::pair<int, int>, const std::string*> first;
  for (const Change& change : open_) first.try_emplace({change.row, change.column}, &change.cells->front());
  return std::ranges::any_of(first, [&](const auto& cell) {
    const auto& [place, before] = cell;
    return *before != grid_.text(place.first, place.second);
  });
}

bool History::rowsDiffer() const {
  std::vector<Row> before = shadow_;
  for (auto last = open_.rbegin(); last != open_.rend(); ++last) {
    const Change& change = *last;
    const auto row = static_cast<std::size_t>(change.row - 1);
    const auto at = before.begin() + static_cast<std::ptrdiff_t>(row);
    if (change.kind == Kind::Text) {
      Cells cells = *before[row];
      cells[static_cast<std::size_t>(change.column - 1)] = change.cells->front();
      before[row] = std::make_shared<Cells>(std::move(cells));
    }
    if (change.kind == Kind::Insert) before.erase(at);
    if (change.kind == Kind::Remove) before.insert(at, change.cells);
  }
  return !std::ranges::equal(before, shadow_, [](const Row& a, const Row& b) { return a == b || *a == *b; });
}

void History::apply(const Change& change, bool backwards) {
  if (change.kind == Kind::Text) {
    grid_.setText(change.row, change.column, (*change.cells)[backwards ? 0 : 1]);
    return;
  }
  if ((change.kind == Kind::Insert) == backwards) {
    grid_.removeRow(change.row);
    return;
  }
  grid_.insertRow(change.row, *change.cells);
  styleRow(grid_, change.row);
}

// Only what the step changed, because a hand-over may have set other captions since.
void History::restoreWords(const Words& from, const Words& to) {
  for (std::size_t i = 0; i < captions_.size(); ++i) {
    if (from.at(i) != to.at(i)) *captions_.at(i) = to.at(i);
  }
  if (from.at(sessionTitle) != to.at(sessionTitle)) state_.seanceTitre = to.at(sessionTitle);
}

void History::replay(std::deque<Step>& from, std::deque<Step>& to, bool backwards) {
  editor_.Command1.click();
  closeStep();
  if (from.empty()) return;
  Step step = std::move(from.back());
  from.pop_back();
  replaying_ = true;
  if (backwards) {
    for (auto last = step.changes.rbegin(); last != step.changes.rend(); ++last) apply(*last, true);
    restoreWords(step.after, step.before);
  } else {
    for (const Change& change : step.changes) apply(change, false);
    restoreWords(step.before, step.after);
  }
  replaying_ = false;
  recalerColonnes(editor_);
  editor_.Timer4.tick();
  wordsBefore_ = wordsNow_ = words();
  to.push_back(std::move(step));
  enableMenuEntries();
}

void History::undo() {
  replay(undo_, redo_, true);
}
void History::redo() {
  replay(redo_, undo_, false);
}

void History::clear() {
  open_.clear();
  undo_.clear();
  redo_.clear();
  wordsBefore_ = wordsNow_ = words();
  enableMenuEntries();
}

void History::enableMenuEntries() {
  editor_.mnUndo.enabled = !undo_.empty();
  editor_.mnRedo.enabled = !redo_.empty();
}

}  // namespace editor
