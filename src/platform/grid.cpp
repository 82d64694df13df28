#include "platform/grid.h"

#include <algorithm>

namespace platform {

using What = GridChange::What;

void Grid::notifyWatchers(const GridChange& change) {
  changes.wakeTimers();
  for (const GridWatcher& watcher : watchers_) watcher(change);
}

void Grid::clearColumns() {
  columns_.clear();
  notifyWatchers({What::Columns});
}

void Grid::addColumn(GridColumn column) {
  columns_.push_back(std::move(column));
  for (Row& row : rows_) {
    ownCells(row).resize(columns_.size());
    row.styles.resize(columns_.size());
  }
  notifyWatchers({What::Columns});
}

void Grid::setColumnWidth(int column, int twips) {
  if (column < 1 || column > columnCount() || columns_[at(column)].width == twips) return;
  columns_[at(column)].width = twips;
  notifyWatchers({What::Columns, 0, column});
}

int Grid::columnLeft(int column) const {
  int edge = 0;
  for (int c = 1; c < column && c <= columnCount(); ++c) edge += columns_[at(c)].width;
  return edge;
}

void Grid::addRow(Cells cells) {
  insertRow(rowCount() + 1, std::move(cells));
}

void Grid::insertRow(int row, Cells cells) {
  const int place = std::clamp(row, 1, rowCount() + 1);
  cells.resize(columns_.size());
  Row fresh{std::make_shared<Cells>(std::move(cells)), std::vector<CellStyle>(columns_.size()), false, false};
  rows_.insert(rows_.begin() + (place - 1), std::move(fresh));
  if (selected_ >= place) ++selected_;
  if (anchor_ >= place) ++anchor_;
  notifyWatchers({What::RowInserted, place, 0});
}

void Grid::removeRow(int row) {
  if (row < 1 || row > rowCount()) return;
  mark(row, false);
  rows_.erase(rows_.begin() + (row - 1));
  for (int* kept : {&selected_, &anchor_}) {
    if (*kept == row) *kept = 0;
    if (*kept > row) --*kept;
  }
  if (pointedRow_ > rowCount()) pointedRow_ = 0;
  notifyWatchers({What::RowRemoved, row, 0});
}

void Grid::clearRows() {
  rows_.clear();
  selected_ = 0;
  anchor_ = 0;
  marked_ = 0;
  pointedRow_ = 0;
  notifyWatchers({What::Cleared});
}

Grid::Cells& Grid::ownCells(Row& row) {
  if (row.cells.use_count() > 1) row.cells = std::make_shared<Cells>(*row.cells);
  return *row.cells;
}

bool Grid::holds(int row, int column) const {
  return row >= 1 && row <= rowCount() && column >= 1 && column <= columnCount();
}

const std::string& Grid::text(int row, int column) const {
  static const std::string none;
  return holds(row, column) ? (*rows_[at(row)].cells)[at(column)] : none;
}

void Grid::setText(int row, int column, const std::string& text) {
  if (!holds(row, column)) return;
  if (Grid::text(row, column) == text) return;
  ownCells(rows_[at(row)])[at(column)] = text;
  notifyWatchers({What::Text, row, column});
}

CellStyle Grid::style(int row, int column) const {
  return holds(row, column) ? rows_[at(row)].styles[at(column)] : CellStyle{};
}

void Grid::setStyle(int row, int firstColumn, int lastColumn, const CellStyle& style) {
  if (!holds(row, firstColumn) || !holds(row, lastColumn)) return;
  bool changed = false;
  for (int c = firstColumn; c <= lastColumn; ++c) {
    CellStyle& present = rows_[at(row)].styles[at(c)];
    if (present == style) continue;
    present = style;
    changed = true;
  }
  if (changed) notifyWatchers({What::Style, row, 0});
}

bool Grid::checked(int row) const {
  return holds(row, 1) && rows_[at(row)].checked;
}

void Grid::setChecked(int row, bool on) {
  if (!holds(row, 1) || rows_[at(row)].checked == on) return;
  rows_[at(row)].checked = on;
  notifyWatchers({What::Checked, row, 0});
}

void Grid::tickRow(int row, bool on) {
  if (!holds(row, 1)) return;
  setChecked(row, on);
  rowTicked(row);
}

void Grid::select(int row) {
  const int wanted = row >= 1 && row <= rowCount() ? row : 0;
  anchor_ = wanted;
  if (selected_ == wanted && marked_ == 0) return;
  unmarkAll();
  takeInHand(wanted);
}

void Grid::takeInHand(int row) {
  selected_ = row;
  notifyWatchers({What::Selection, row, 0});
}

void Grid::mark(int row, bool on) {
  if (rows_[at(row)].marked == on) return;
  rows_[at(row)].marked = on;
  marked_ += on ? 1 : -1;
}

void Grid::unmarkAll() {
  if (marked_ == 0) return;
  for (Row& row : rows_) row.marked = false;
  marked_ = 0;
}

// What was one selected row becomes the first of several.
void Grid::markSelected() {
  if (marked_ == 0 && selected_ != 0) mark(selected_, true);
}

bool Grid::isSelected(int row) const {
  return marked_ == 0 ? row == selected_ && row != 0 : holds(row, 1) && rows_[at(row)].marked;
}

std::vector<int> Grid::selectedRows() const {
  std::vector<int> selected;
  if (marked_ == 0 && selected_ != 0) selected.push_back(selected_);
  for (int row = 1; marked_ > 0 && row <= rowCount(); ++row) {
    if (rows_[at(row)].marked) selected.push_back(row);
  }
  return selected;
}

void Grid::selectRows(const std::vector<int>& rows, int inHand) {
  unmarkAll();
  for (const int row : rows) {
    if (holds(row, 1)) mark(row, true);
  }
  if (marked_ == 1 && isSelected(inHand)) unmarkAll();
  anchor_ = rows.empty() ? 0 : rows.front();
  takeInHand(holds(inHand, 1) ? inHand : 0);
}

void Grid::extendSelection(int row) {
  if (!holds(row, 1)) return;
  const int from = anchor_ == 0 ? row : anchor_;
  std::vector<int> rows;
  for (int each = std::min(from, row); each <= std::max(from, row); ++each) rows.push_back(each);
  selectRows(rows, row);
  anchor_ = from;
}

void Grid::toggleSelected(int row) {
  if (!holds(row, 1)) return;
  markSelected();
  const bool out = rows_[at(row)].marked && marked_ > 1;
  mark(row, !out);
  anchor_ = row;
  takeInHand(row);
}

void Grid::carryTo(int row) {
  if (!holds(row, 1)) return;
  markSelected();
  takeInHand(row);
}

void Grid::setVisibleRows(int first, int last) {
  if (first == firstVisible_ && last == lastVisible_) return;
  firstVisible_ = first;
  lastVisible_ = last;
  changes.wakeTimers();
}

void Grid::pointAt(int row, int column) {
  const int onRow = row >= 1 && row <= rowCount() ? row : 0;
  if (onRow != pointedRow_ || column != pointedColumn_) changes.wakeTimers();
  pointedRow_ = onRow;
  pointedColumn_ = column;
  pointerMoved();
}

void Grid::pressAt(int row, int column, MouseButton button) {
  pointAt(row, column);
  pressed(button);
  if (pointedRow_ == 0) return;
  if (button == MouseButton::Right && severalSelected() && isSelected(pointedRow_)) {
    takeInHand(pointedRow_);
  } else {
    select(pointedRow_);
  }
  if (button == MouseButton::Left) click();
}

}  // namespace platform
