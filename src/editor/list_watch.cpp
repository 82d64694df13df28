#include "editor/list_watch.h"

#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/time_value.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace editor {
namespace {

namespace column = model::column;

constexpr int warningShown = 3000;   // ms
constexpr int warningHidden = 500;   // ms
constexpr int characterWidth = 110;  // twips that a character takes on the average
constexpr int cellMargin = 100;      // twips

}  // namespace

ListWatch::ListWatch(const context::Context& context)
    : editor_(context.screens.editor), grid_(editor_.ListView1) {
  editor_.Timer4.tick.handle([this] { calculerTotal(); });
  editor_.Timer5.tick.handle([this] { editor_.Timer5.rest({}); });
  editor_.Timer6.tick.handle([this] { verifierLignes(); });
  editor_.Timer7.tick.handle([this] { blink(); });
  editor_.Timer9.tick.handle([this] { survolerCellule(); });
  grid_.watchGrid([this](const platform::GridChange& change) { markStale(change); });
}

void ListWatch::markStale(const platform::GridChange& change) {
  using What = platform::GridChange::What;
  const bool unseen = change.what == What::Selection || change.what == What::Reveal ||
                      change.what == What::Focus || change.what == What::Checked;
  if (unseen) return;
  stylesStale_ = true;
  if (change.what != What::Style) totalStale_ = true;
}

// In whole seconds. Whole days drop out, as they do where times are added as texts.
void ListWatch::calculerTotal() {
  if (!totalStale_) return editor_.Timer4.rest({&grid_.changes});
  int sum = 0;
  for (int row = 2; row <= grid_.rowCount(); ++row) {
    const std::string& duration = grid_.text(row, column::duration);
    if (duration == model::noMeaning || duration.empty()) continue;
    if (const std::optional<int> seconds = model::parseSeconds(duration))
      sum = (sum + *seconds) % model::secondsADay;
  }
  const int times = model::lenientInteger(grid_.text(1, column::times));
  grid_.setText(1, column::duration,
                model::formatSeconds(static_cast<long long>(sum) * (times > 0 ? times : 1)));
  totalStale_ = false;
}

int ListWatch::paintRows() {
  int unfinished = 0;
  for (int row = 2; row <= grid_.rowCount(); ++row) {
    const bool red = model::isUnfinished(grid_, row);
    if (red) ++unfinished;
    grid_.setStyle(row, column::sessionName, column::deleteMark,
                   red ? model::row_style::unfinished : model::row_style::finished);
  }
  return unfinished;
}

void ListWatch::verifierLignes() {
  if (grid_.rowCount() < 2) return editor_.Timer6.rest({&grid_.changes});
  if (stylesStale_) {
    unfinished_ = paintRows();
    stylesStale_ = false;
  }
  showUnfinished();
  editor_.Timer6.rest({&grid_.changes, &editor_.MyButton5.visible, &editor_.Command35.visible,
                       &editor_.Command6.visible, &editor_.MyButton11.visible, &editor_.MyButton11.caption,
                       &editor_.Timer7.enabled});
}

void ListWatch::showUnfinished() {
  const bool complete = unfinished_ == 0;
  editor_.MyButton5.visible = complete;
  editor_.Command35.visible = complete;
  editor_.Command6.visible = complete;
  if (complete) {
    editor_.MyButton11.visible = false;
    editor_.Timer7.enabled = false;
    return;
  }
  // Once it blinks, its timer alone shows and hides it.
  if (!editor_.Timer7.enabled) editor_.MyButton11.visible = true;
  editor_.Timer7.enabled = true;
  editor_.MyButton11.caption = std::to_string(unfinished_) + " Séquence(s) en (Rouge) non Terminée(s)...";
}

void ListWatch::blink() {
  editor_.MyButton11.visible = !editor_.MyButton11.visible;
  editor_.Timer7.interval = editor_.MyButton11.visible ? warningShown : warningHidden;
}

void ListWatch::survolerCellule() {
  const int row = grid_.pointedRow();
  const int col = grid_.pointedColumn();
  if (row == 0 || col < 1 || col > grid_.columnCount()) return editor_.Timer9.rest({&grid_.changes});
  const std::string text = platform::trim(grid_.text(row, col));
  editor_.Label29.caption = text;
  const int width = grid_.column(col).width;
  const bool cut = static_cast<int>(platform::length(text)) * characterWidth > width - cellMargin;
  grid_.toolTip = cut ? text : std::string();
  editor_.Navette.left = grid_.columnLeft(col);
  editor_.Navette.width = width;
  editor_.Navette.visible = grid_.rowShows(row);
  editor_.Timer9.rest({&grid_.changes, &grid_.toolTip, &editor_.Label29.caption, &editor_.Navette.left,
                       &editor_.Navette.width, &editor_.Navette.visible});
}

}  // namespace editor
