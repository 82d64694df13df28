// A list whose rows can be ticked: the box stands before the first column's text.
#pragma once

#include "widgets/grid_table.h"

namespace widgets {

class CheckList final : public GridTable {
  Q_OBJECT
 public:
  explicit CheckList(QWidget* parent = nullptr);
  // The place of a row's box in the viewport, px; rows from 1.
  [[nodiscard]] QRect boxRect(int row) const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void toggle(int row);
};

}  // namespace widgets
