#include "widgets/row_drag.h"

#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace widgets {
namespace {

constexpr int scrollPeriod = 40;  // ms

}  // namespace

RowDrag::RowDrag(QTableView& table) : QObject(&table), table_(table) {
  scroll_.setInterval(scrollPeriod);
  connect(&scroll_, &QTimer::timeout, this, &RowDrag::scroll);
}

void RowDrag::arm(int row) {
  cancel();
  armed_ = row;
}

// A hand that trembles in a click stays on its row.
bool RowDrag::moveTo(const QPoint& at) {
  if (armed_ == 0) return false;
  pointer_ = at;
  const int rows = table_.model()->rowCount();
  const int inside = std::clamp(at.y(), 0, std::max(0, table_.viewport()->height() - 1));
  const int found = table_.rowAt(inside) + 1;
  if (!active() && found == armed_) return false;
  const int row = found == 0 ? rows : found;
  const bool lower = at.y() > table_.rowViewportPosition(row - 1) + table_.rowHeight(row - 1) / 2;
  before_ = row + (lower ? 1 : 0);
  const bool outside = at.y() < 0 || at.y() >= table_.viewport()->height();
  if (outside != scroll_.isActive()) outside ? scroll_.start() : scroll_.stop();
  table_.viewport()->update();
  return true;
}

int RowDrag::drop() {
  scroll_.stop();
  armed_ = 0;
  if (active()) table_.viewport()->update();
  return std::exchange(before_, 0);
}

int RowDrag::lineY() const {
  const int last = std::min(before_, table_.model()->rowCount()) - 1;
  return table_.rowViewportPosition(last) + (before_ - 1 > last ? table_.rowHeight(last) : 0);
}

void RowDrag::scroll() {
  QScrollBar& bar = *table_.verticalScrollBar();
  const int step = table_.rowHeight(0) / 2;
  bar.setValue(bar.value() + (pointer_.y() < 0 ? -step : step));
  moveTo(pointer_);
}

}  // namespace widgets
