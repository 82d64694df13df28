// A grid of the logic as a table for Qt's views. Changes are gathered and told to the view once control is
// back in Qt's loop, so that a list of ten thousand rows made row by row costs one insertion.
#pragma once

#include <QAbstractTableModel>
#include <QTimer>
#include <set>
#include <utility>

#include "platform/grid.h"

namespace widgets {

class GridModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit GridModel(platform::Grid& grid, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int wanted) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int wanted) const override;
  // Tells the view at once what has changed so far.
  void flush();

 signals:
  void columnsChanged();
  void contentChanged();
  void selectionMoved(int row);
  void revealAsked(int row);
  void focusAsked();

 private:
  void recordChange(const platform::GridChange& change);

  platform::Grid& grid_;
  QTimer pending_;
  int rows_ = 0;  // as far as the view knows
  int columns_ = 0;
  bool moved_ = false;  // rows came or went elsewhere than at the end
  bool columnsTouched_ = false;
  std::set<std::pair<int, int>> cells_;  // changed; a column of 0 is the whole row
  int revealed_ = 0;
};

}  // namespace widgets
