#include "widgets/grid_model.h"

#include "model/grid_rows.h"
#include "widgets/qt_text.h"

namespace widgets {
namespace {

constexpr std::size_t singly = 256;  // more changed cells than this are reported as one area

}  // namespace

GridModel::GridModel(platform::Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), rows_(grid.rowCount()), columns_(grid.columnCount()) {
  pending_.setSingleShot(true);
  pending_.setInterval(0);
  connect(&pending_, &QTimer::timeout, this, &GridModel::flush);
  grid.watchGrid([this](const platform::GridChange& change) { recordChange(change); });
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int wanted) const {
  // Session files pad the names of announcements with blanks.
  if (wanted == Qt::DisplayRole) return toQt(grid_.text(index.row() + 1, index.column() + 1)).trimmed();
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int wanted) const {
  if (orientation != Qt::Horizontal || section >= grid_.columnCount()) return {};
  if (wanted == Qt::DisplayRole) return toQt(grid_.column(section + 1).header);
  if (wanted == Qt::TextAlignmentRole && section + 1 == model::column::sessionName) {
    return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  }
  return {};
}

void GridModel::recordChange(const platform::GridChange& change) {
  using What = platform::GridChange::What;
  switch (change.what) {
    case What::Columns:
      columnsTouched_ = true;
      break;
    case What::RowInserted:
      moved_ = moved_ || change.row != grid_.rowCount();
      break;
    case What::RowRemoved:
    case What::Cleared:
      moved_ = true;
      break;
    case What::Text:
    case What::Style:
    case What::Checked:
      if (change.row <= rows_) cells_.insert({change.row, change.column});
      break;
    case What::Selection:
      break;
    case What::Reveal:
      revealed_ = change.row;
      break;
    case What::Focus:
      emit focusAsked();
      return;
  }
  if (!pending_.isActive()) pending_.start();
}

void GridModel::flush() {
  pending_.stop();
  const bool content = moved_ || !cells_.empty() || rows_ != grid_.rowCount() || columnsTouched_;
  if (moved_ || columns_ != grid_.columnCount() || rows_ > grid_.rowCount()) {
    beginResetModel();
    rows_ = grid_.rowCount();
    columns_ = grid_.columnCount();
    endResetModel();
    columnsTouched_ = true;
    cells_.clear();
  } else if (rows_ < grid_.rowCount()) {
    beginInsertRows({}, rows_, grid_.rowCount() - 1);
    rows_ = grid_.rowCount();
    endInsertRows();
  }
  const std::set<std::pair<int, int>> cells = std::exchange(cells_, {});
  if (cells.size() > singly) {
    emit dataChanged(index(cells.begin()->first - 1, 0), index(cells.rbegin()->first - 1, columns_ - 1));
  } else {
    for (const auto& [row, column] : cells) {
      emit dataChanged(index(row - 1, column == 0 ? 0 : column - 1),
                       index(row - 1, column == 0 ? columns_ - 1 : column - 1));
    }
  }
  moved_ = false;
  if (std::exchange(columnsTouched_, false)) emit columnsChanged();
  emit selectionMoved(grid_.selectedRow());
  if (const int row = std::exchange(revealed_, 0); row > 0) emit revealAsked(row);
  if (content) emit contentChanged();
}

}  // namespace widgets
