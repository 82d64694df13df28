// Presents a grid of the logic to Qt's views. Changes are collected and passed on from Qt's event loop, so
// that ten thousand rows added one by one cost the view one insertion.
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
  // Passes the changes so far on at once.
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
  int rows_ = 0;  // as last told to the view
  int columns_ = 0;
  bool moved_ = false;  // rows were added or removed elsewhere than at the end
  bool columnsTouched_ = false;
  std::set<std::pair<int, int>> cells_;  // that changed; a column of 0 is the whole row
  int revealed_ = 0;
};

}  // namespace widgets
