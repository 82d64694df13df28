// The list on the screen: a Qt table that shows a grid, and turns mouse and keys into the grid's events.
#pragma once

#include <QTableView>
#include <functional>

#include "platform/grid.h"
#include "widgets/grid_model.h"
#include "widgets/row_drag.h"

namespace widgets {

class GridTable : public QTableView {
  Q_OBJECT
 public:
  using Runner = std::function<void(std::function<void()>)>;

  explicit GridTable(QWidget* parent = nullptr);
  // The rider's actions are handed to `run`, which may delay them.
  void showGrid(platform::Grid& grid, Runner run);
  [[nodiscard]] const platform::Grid* grid() const { return grid_; }
  [[nodiscard]] GridModel* gridModel() const { return model_; }
  // The place of a cell in the viewport, px; rows and columns from 1.
  [[nodiscard]] QRect cellRect(int row, int column) const;
  // The cell pressed last; the left and right keys move the column.
  [[nodiscard]] int pressedRow() const { return pressedRow_; }
  [[nodiscard]] int pressedColumn() const { return cursorColumn_; }
  // Presses a cell with the right button on behalf of a key, without moving the keyboard's cell.
  void pressRight(int row, int column);
  // To be called when the scale of the window has changed.
  void rescale();
  // `tip` gives the tool tip of a column's header.
  void setHeaderTip(std::function<QString(int column)> tip) { headerTip_ = std::move(tip); }
  // Asked first about each key; true if it was used.
  void setTyping(std::function<bool(QKeyEvent&)> typing) { typing_ = std::move(typing); }
  // Asked where the Tab key goes; true if it stays in the list.
  void setTabbing(std::function<bool(bool forward)> tabbing) { tabbing_ = std::move(tabbing); }
  // Moves the keyboard to a cell of the row in hand.
  void goToColumn(int column);
  // Presses the keyboard's cell, as a click does.
  void pressCell();

 signals:
  void layoutMoved();
  // A key asks to edit the keyboard's cell, or to delete its row.
  void cellOpened();
  void deletionAsked(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool forward) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  struct Cell {
    int row;
    int column;
  };
  [[nodiscard]] Cell cellAt(const QPoint& point) const;
  void setCursorColumn(int column) { cursorColumn_ = column; }
  // Runs an action of the rider on the grid.
  void act(std::function<void(platform::Grid&)> deed) {
    run_([grid = grid_, deed = std::move(deed)] { deed(*grid); });
  }

 private:
  void press(int row, int column, platform::MouseButton button);
  void point(const QPoint& at);
  void goTo(int row, Qt::KeyboardModifiers held);
  void goSideways(int step);
  [[nodiscard]] bool pressNamed(const QKeyEvent& event);
  [[nodiscard]] bool selectByMouse(const Cell& cell, Qt::KeyboardModifiers held);
  void tellSelection();
  void layColumns();
  void reportVisibleRows();
  void refreshRow(int row);
  void showRow(int row);

  platform::Grid* grid_ = nullptr;
  GridModel* model_ = nullptr;
  Runner run_;
  std::function<QString(int)> headerTip_;
  int pressedRow_ = 0;
  int cursorColumn_ = 4;
  int selectedRow_ = 0;
  bool several_ = false;  // rows were selected when last looked at
  std::function<bool(QKeyEvent&)> typing_;
  std::function<bool(bool)> tabbing_;
  RowDrag drag_{*this};
  Cell heldBack_{0, 0};  // pressed on one of several selected rows, which a drag would move
};

// Draws the ground of a cell: the selected row's tint, the line below, the frame of the keyboard's cell.
void paintCellGround(QPainter& painter, const QRect& cell, const GridTable& table, int row, int column);

}  // namespace widgets
