// Dragging rows of a list with the mouse: from which press on it is a drag, and between which rows they would
// drop. At the list's edges it scrolls.
#pragma once

#include <QTableView>
#include <QTimer>

namespace widgets {

class RowDrag final : public QObject {
 public:
  explicit RowDrag(QTableView& table);

  // The left button goes down on a row; rows count from 1.
  void arm(int row);
  // Whether rows are being dragged, now that the pointer is there.
  bool moveTo(const QPoint& at);
  // The row before which they drop, one more than there are behind the last; 0 where nothing was dragged.
  int drop();
  void cancel() { drop(); }
  [[nodiscard]] bool active() const { return before_ > 0; }
  // Where the line that shows the place goes, px in the viewport.
  [[nodiscard]] int lineY() const;

 private:
  void scroll();

  QTableView& table_;
  QTimer scroll_;
  QPoint pointer_;
  int armed_ = 0;
  int before_ = 0;
};

}  // namespace widgets
