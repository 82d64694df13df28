// The list's mouse and keys.
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "model/grid_rows.h"
#include "widgets/grid_table.h"

namespace widgets {
namespace {

struct NamedKey {
  int key;
  Qt::KeyboardModifiers held;
  const char* name;
};

// Keys that the list's logic knows by name.
constexpr std::array<NamedKey, 10> namedKeys{{{Qt::Key_A, Qt::ControlModifier, "Ctrl+A"},
                                              {Qt::Key_C, Qt::ControlModifier, "Ctrl+C"},
                                              {Qt::Key_X, Qt::ControlModifier, "Ctrl+X"},
                                              {Qt::Key_V, Qt::ControlModifier, "Ctrl+V"},
                                              {Qt::Key_D, Qt::ControlModifier, "Ctrl+D"},
                                              {Qt::Key_R, Qt::ControlModifier, "Ctrl+R"},
                                              {Qt::Key_Return, Qt::ControlModifier, "Ctrl+Enter"},
                                              {Qt::Key_Enter, Qt::ControlModifier, "Ctrl+Enter"},
                                              {Qt::Key_Up, Qt::AltModifier, "Alt+Up"},
                                              {Qt::Key_Down, Qt::AltModifier, "Alt+Down"}}};

Qt::KeyboardModifiers heldIn(const QInputEvent& event) {
  return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

}  // namespace

void GridTable::press(int row, int column, platform::MouseButton button) {
  pressedRow_ = row;
  cursorColumn_ = column;
  run_([this, row, column, button] { grid_->pressAt(row, column, button); });
  emit layoutMoved();
}

void GridTable::pressCell() {
  press(std::max(1, grid_->selectedRow()), cursorColumn_, platform::MouseButton::Left);
}

void GridTable::pressRight(int row, int column) {
  const int kept = cursorColumn_;
  press(row, column, platform::MouseButton::Right);
  cursorColumn_ = kept;
  refreshRow(row);
}

// Shift and Ctrl select, and open no cell.
bool GridTable::selectByMouse(const Cell& cell, Qt::KeyboardModifiers held) {
  if (!grid_->takesSeveral() || cell.row == 0) return false;
  if ((held & (Qt::ShiftModifier | Qt::ControlModifier)) == 0) return false;
  const bool range = (held & Qt::ShiftModifier) != 0;
  cursorColumn_ = cell.column;
  run_([this, range, row = cell.row] { range ? grid_->extendSelection(row) : grid_->toggleSelected(row); });
  return true;
}

void GridTable::mousePressEvent(QMouseEvent* event) {
  if (grid_ == nullptr) return;
  model_->flush();
  const Cell cell = cellAt(event->position().toPoint());
  const bool left = event->button() == Qt::LeftButton;
  setFocus(Qt::MouseFocusReason);
  heldBack_ = {0, 0};
  if (left && selectByMouse(cell, heldIn(*event))) return;
  drag_.arm(left && grid_->takesSeveral() && cell.row > 1 ? cell.row : 0);  // the first row stays
  if (left && grid_->severalSelected() && grid_->isSelected(cell.row)) {
    heldBack_ = cell;
    return;
  }
  press(cell.row, cell.column,
        event->button() == Qt::RightButton ? platform::MouseButton::Right : platform::MouseButton::Left);
}

void GridTable::point(const QPoint& at) {
  if (grid_ == nullptr) return;
  const Cell cell = cellAt(at);
  run_([this, cell] { grid_->pointAt(cell.row, cell.column); });
  emit layoutMoved();
}

void GridTable::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if ((event->buttons() & Qt::LeftButton) != 0 && drag_.moveTo(at)) return;
  point(at);
}

void GridTable::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || grid_ == nullptr) return;
  const Cell held = std::exchange(heldBack_, {0, 0});
  if (const int before = drag_.drop(); before > 0) {
    run_([this, before] { grid_->rowsDropped(before); });
  } else if (held.row > 0) {
    press(held.row, held.column, platform::MouseButton::Left);
  }
}

// Scrolling brings another cell under the pointer.
void GridTable::wheelEvent(QWheelEvent* event) {
  QTableView::wheelEvent(event);
  point(event->position().toPoint());
}

bool GridTable::pressNamed(const QKeyEvent& event) {
  if (!grid_->takesSeveral()) return false;
  const auto* named = std::find_if(namedKeys.begin(), namedKeys.end(), [&](const NamedKey& each) {
    return each.key == event.key() && each.held == heldIn(event);
  });
  if (named == namedKeys.end()) return false;
  run_([this, name = named->name] { grid_->keyPressed(name); });
  // A new row begins with its kind.
  if (named->held == Qt::ControlModifier && named->name == std::string_view("Ctrl+Enter")) {
    goToColumn(model::column::sequence);
  }
  model_->flush();
  return true;
}

void GridTable::goTo(int row, Qt::KeyboardModifiers held) {
  const int wanted = std::clamp(row, 1, grid_->rowCount());
  const bool several = grid_->takesSeveral();
  const bool range = several && (held & Qt::ShiftModifier) != 0;
  const bool carried = several && held == Qt::ControlModifier;
  run_([this, wanted, range, carried] {
    if (range) return grid_->extendSelection(wanted);
    carried ? grid_->carryTo(wanted) : grid_->select(wanted);
  });
  model_->flush();
  showRow(wanted);
}

void GridTable::goToColumn(int column) {
  cursorColumn_ = column;
  refreshRow(grid_->selectedRow());
  emit layoutMoved();
}

void GridTable::goSideways(int step) {
  for (int c = cursorColumn_ + step; c >= 1 && c <= grid_->columnCount(); c += step) {
    if (grid_->column(c).width > 0) return goToColumn(c);
  }
}

bool GridTable::focusNextPrevChild(bool forward) {
  if (tabbing_ && hasFocus() && tabbing_(forward)) return true;
  return QTableView::focusNextPrevChild(forward);
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (grid_ == nullptr || grid_->rowCount() == 0) {
    event->ignore();
    return;
  }
  if (drag_.active() && event->key() == Qt::Key_Escape) return drag_.cancel();
  if ((typing_ && typing_(*event)) || pressNamed(*event)) return;
  const int row = std::max(1, grid_->selectedRow());
  const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
  const Qt::KeyboardModifiers held = heldIn(*event);
  switch (event->key()) {
    case Qt::Key_Up:
      return goTo(row - 1, held);
    case Qt::Key_Down:
      return goTo(row + 1, held);
    case Qt::Key_PageUp:
      return goTo(row - page, held);
    case Qt::Key_PageDown:
      return goTo(row + page, held);
    case Qt::Key_Home:
      return goTo(1, held);
    case Qt::Key_End:
      return goTo(grid_->rowCount(), held);
    case Qt::Key_Left:
      return goSideways(-1);
    case Qt::Key_Right:
      return goSideways(1);
    case Qt::Key_Space:
      if (held == Qt::ControlModifier && selectByMouse({row, cursorColumn_}, held)) return;
      [[fallthrough]];
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
      pressCell();
      emit cellOpened();
      break;
    case Qt::Key_Delete:
      emit deletionAsked(row);
      break;
    case Qt::Key_Menu:
      press(row, cursorColumn_, platform::MouseButton::Right);
      break;
    default:
      event->ignore();
  }
}

}  // namespace widgets
