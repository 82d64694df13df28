// A list whose rows can be ticked: the box stands before the first column's text.
#pragma once

#include "widgets/grid_table.h"

namespace widgets {

class CheckList final : public GridTable {
  Q_OBJECT
 public:
  explicit CheckList(QWidget* parent = nullptr);
  // Where a row's box is, in the viewport.
  [[nodiscard]] QRect boxRect(int row) const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void toggle(int row);
};

}  // namespace widgets
