#include "editor/row_rules.h"

#include "model/grid_rows.h"
#include "model/training_model.h"

namespace editor {
namespace {

namespace column = model::column;

const std::string none(model::noMeaning);
const std::string blank(model::emptyCell);

void dash(platform::Grid& grid, int row, int first, int last) {
  for (int c = first; c <= last; ++c) grid.setText(row, c, none);
}

}  // namespace

void applyRowRules(platform::Grid& grid, int row, const std::string& duration) {
  const std::string kind = grid.text(row, column::sequence);
  if (kind == model::vocalAnnouncement) {
    dash(grid, row, column::cadence, column::duration);
    if (grid.text(row, column::announcement) == none) grid.setText(row, column::announcement, blank);
    grid.setText(row, column::heartRate, none);
  } else if (kind == blank) {
    dash(grid, row, column::cadence, column::announcement);
  } else if (kind != none) {
    for (const int c : {column::cadence, column::chainring, column::gear}) {
      if (grid.text(row, c) == none) grid.setText(row, c, blank);
    }
    dash(grid, row, column::repeat, column::times);
    grid.setText(row, column::duration, duration);
    grid.setText(row, column::heartRate, blank);
    grid.setText(row, column::announcement, none);
  }
}

bool applyRepetition(platform::Grid& grid, int picked, const std::string& text) {
  const bool asksForMore = picked == column::times ? text != "0" : text == "Oui";
  if (asksForMore && grid.rowCount() < 2) {
    grid.setText(1, column::repeat, "Non");
    grid.setText(1, column::times, "0");
    return false;
  }
  if (picked == column::times) {
    grid.setText(1, column::repeat, asksForMore ? "Oui" : "Non");
  } else {
    grid.setText(1, column::times, asksForMore ? "1" : "0");
  }
  return true;
}

}  // namespace editor
