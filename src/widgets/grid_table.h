// The list on the screen: Qt's table over a grid, with the mouse and the keyboard in the grid's own terms.
#pragma once

#include <QTableView>
#include <functional>

#include "platform/grid.h"
#include "widgets/grid_model.h"

namespace widgets {

class GridTable : public QTableView {
  Q_OBJECT
 public:
  using Runner = std::function<void(std::function<void()>)>;

  explicit GridTable(QWidget* parent = nullptr);
  // What the person does reaches the grid through `run`.
  void showGrid(platform::Grid& grid, Runner run);
  [[nodiscard]] const platform::Grid* grid() const { return grid_; }
  [[nodiscard]] GridModel* gridModel() const { return model_; }
  // The place of a cell in the viewport; rows and columns from 1.
  [[nodiscard]] QRect cellRect(int row, int column) const;
  // Where a mouse button went down last.
  [[nodiscard]] int pressedRow() const { return pressedRow_; }
  [[nodiscard]] int pressedColumn() const { return cursorColumn_; }
  // What a right press on a cell does, for a key: the keyboard stays in the cell where it is.
  void pressRight(int row, int column);
  // Takes the scale of the window anew.
  void rescale();
  // A tool tip for a column's header.
  void setHeaderTip(std::function<QString(int column)> tip) { headerTip_ = std::move(tip); }

 signals:
  void layoutMoved();
  // By a key: the cell in hand, or its row, is to be opened or taken away.
  void cellOpened();
  void deletionAsked(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent*) override {}
  void wheelEvent(QWheelEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void keyPressEvent(QKeyEvent* event) override;
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
  // What the person does with the grid.
  void act(std::function<void(platform::Grid&)> deed) {
    run_([grid = grid_, deed = std::move(deed)] { deed(*grid); });
  }

 private:
  void press(int row, int column, platform::MouseButton button);
  void point(const QPoint& at);
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
};

// What lies under a cell's text: the selected row's tint, the line below, the frame of the cell in hand.
void paintCellGround(QPainter& painter, const QRect& cell, const GridTable& table, int row, int column);

}  // namespace widgets
