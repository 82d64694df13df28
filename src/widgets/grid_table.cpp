#include "widgets/grid_table.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <array>

#include "model/effort_family.h"
#include "model/grid_rows.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

// The form's column widths suit another font: the factor by which each column is wider or narrower here.
constexpr std::array<double, 14> share{0, 1, 1.05, 0.94, 1.5, 1, 1.1, 1.05, 0.9, 0.85, 0.72, 1, 0.9, 1.05};

class CellPainter final : public QStyledItemDelegate {
 public:
  explicit CellPainter(GridTable* table) : QStyledItemDelegate(table), table_(table) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const platform::Grid& grid = *table_->grid();
    const int row = index.row() + 1;
    const int column = index.column() + 1;
    const QPalette palette = QGuiApplication::palette();
    paintCellGround(*painter, option.rect, *table_, row, column);

    const std::string cell = fromQt(index.data().toString());
    // A cell without a colour of its own takes that of its row.
    platform::CellStyle style = grid.style(row, column);
    if (style.colour.automatic) style = grid.style(row, model::column::sessionName);
    const bool marker = column > model::column::sessionName && cell.starts_with("--");
    painter->setPen(marker ? palette.color(role::second) : onScreen(palette, style.colour));
    painter->setFont(sansFont(table_, 15, style.bold ? QFont::Bold : QFont::Normal));
    const int inset = dp(table_, column == model::column::sessionName ? 12 : 3);
    const QRect place = option.rect.adjusted(inset, 0, -dp(table_, 3), 0);
    if (column == model::column::sequence && model::isSequence(grid, row)) {
      paintKind(*painter, place, toQt(cell));
      return;
    }
    const bool left =
        column == model::column::sessionName || grid.column(column).alignment == platform::Alignment::Left;
    const Qt::Alignment side = left ? Qt::AlignLeft : Qt::AlignHCenter;
    painter->drawText(place, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(toQt(cell), Qt::ElideRight, place.width()));
  }

 private:
  void paintKind(QPainter& painter, const QRect& place, const QString& kind) const {
    const int chip = dp(table_, 6);
    const int gap = dp(table_, 8);
    // A long name is drawn smaller before it is shortened.
    if (painter.fontMetrics().horizontalAdvance(kind) > place.width() - chip - gap) {
      painter.setFont(sansFont(table_, 13, painter.font().weight()));
    }
    const QString shown = painter.fontMetrics().elidedText(kind, Qt::ElideRight, place.width() - chip - gap);
    const int textWidth = painter.fontMetrics().horizontalAdvance(shown);
    const int x = place.left() + (place.width() - textWidth - chip - gap) / 2;
    const int high = dp(table_, 18);
    painter.drawText(QRect(x + chip + gap, place.top(), textWidth + 2, place.height()), Qt::AlignVCenter,
                     shown);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(familyColour(QGuiApplication::palette(), model::effortFamily(fromQt(kind))));
    painter.drawRoundedRect(QRect(x, place.center().y() - high / 2, chip, high), chip / 3.0, chip / 3.0);
  }

  GridTable* table_;
};

}  // namespace

void paintCellGround(QPainter& painter, const QRect& cell, const GridTable& table, int row, int column) {
  const QPalette palette = QGuiApplication::palette();
  const bool inHand = row == table.grid()->selectedRow();
  const bool selected = table.grid()->isSelected(row);
  if (selected) painter.fillRect(cell, mixed(palette.color(role::card), palette.color(role::accent), 0.16));
  painter.setPen(palette.color(role::line));
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  if (selected && table.grid()->severalSelected() && cell.left() <= 0) {
    painter.fillRect(cell.x(), cell.y(), dp(&table, 4), cell.height(), palette.color(role::accent));
  }
  if (!inHand || !table.hasFocus() || column != table.pressedColumn()) return;
  painter.setPen(QPen(palette.color(role::accent), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(1, 1, -2, -2));
}

GridTable::GridTable(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new CellPainter(this));
  setShowGrid(false);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  setFrameShape(NoFrame);
  setTabKeyNavigation(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setDefaultAlignment(Qt::AlignCenter | Qt::Alignment(Qt::TextWordWrap));
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->viewport()->installEventFilter(this);
  viewport()->setMouseTracking(true);
  setMouseTracking(true);
}

void GridTable::showGrid(platform::Grid& grid, Runner run) {
  grid_ = &grid;
  run_ = std::move(run);
  model_ = new GridModel(grid, this);
  if (grid.takesSeveral()) {
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
  }
  setModel(model_);
  connect(model_, &GridModel::columnsChanged, this, &GridTable::layColumns);
  connect(model_, &GridModel::contentChanged, this, &GridTable::reportVisibleRows);
  connect(model_, &GridModel::focusAsked, this, [this] { setFocus(); });
  connect(model_, &GridModel::revealAsked, this, [this](int row) { showRow(row); });
  connect(model_, &GridModel::selectionMoved, this, [this](int row) {
    refreshRow(selectedRow_);
    selectedRow_ = row;
    refreshRow(row);
    tellSelection();
    emit layoutMoved();
  });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int section) { run_([this, section] { grid_->headerClicked(section + 1); }); });
  rescale();
}

void GridTable::rescale() {
  const int row = dp(this, 36);
  verticalHeader()->setMinimumSectionSize(row);
  verticalHeader()->setDefaultSectionSize(row);
  horizontalHeader()->setFixedHeight(dp(this, 40));
  layColumns();
}

void GridTable::layColumns() {
  if (grid_ == nullptr || grid_->columnCount() != model_->columnCount()) return;
  double all = 0;
  const auto wanted = [&](int column) {
    const double factor =
        column < static_cast<int>(share.size()) ? share.at(static_cast<std::size_t>(column)) : 1;
    return grid_->column(column).width * factor;
  };
  for (int c = 1; c <= grid_->columnCount(); ++c) all += wanted(c);
  const double room = viewport()->width();
  double edge = 0;
  int drawn = 0;
  for (int c = 1; c <= grid_->columnCount(); ++c) {
    setColumnHidden(c - 1, grid_->column(c).width == 0);
    edge += all > 0 ? wanted(c) * room / all : 0;
    setColumnWidth(c - 1, static_cast<int>(edge) - drawn);
    drawn = static_cast<int>(edge);
  }
  reportVisibleRows();
  emit layoutMoved();
}

QRect GridTable::cellRect(int row, int column) const {
  if (model_ == nullptr || row < 1 || column < 1) return {};
  return visualRect(model_->index(row - 1, column - 1));
}

GridTable::Cell GridTable::cellAt(const QPoint& point) const {
  return {rowAt(point.y()) + 1, std::max(0, columnAt(point.x()) + 1)};
}

// Scrolls by a column that no list hides, since Qt does not scroll to a hidden cell.
void GridTable::showRow(int row) {
  scrollTo(model_->index(row - 1, std::min(2, model_->columnCount() - 1)));
}

void GridTable::refreshRow(int row) {
  if (row < 1 || model_ == nullptr || row > model_->rowCount()) return;
  viewport()->update(0, rowViewportPosition(row - 1), viewport()->width(), rowHeight(row - 1));
}

void GridTable::reportVisibleRows() {
  if (grid_ == nullptr) return;
  const int first = rowAt(0);
  const int last = rowAt(viewport()->height() - rowHeight(0) / 2);
  grid_->setVisibleRows(first < 0 ? 1 : first + 1, last < 0 ? grid_->rowCount() : last + 1);
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  layColumns();
}

void GridTable::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  reportVisibleRows();
  emit layoutMoved();
}

// Qt's own selection, which nothing here draws, is what screen readers read.
void GridTable::tellSelection() {
  const bool several = grid_->severalSelected();
  if (several || several_) viewport()->update();
  several_ = several;
  if (!grid_->takesSeveral()) return;
  QItemSelection told;
  const std::vector<int> rows = grid_->selectedRows();
  for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
    next = first + 1;
    while (next < rows.size() && rows[next] == rows[next - 1] + 1) ++next;
    told.select(model_->index(rows[first] - 1, 0),
                model_->index(rows[next - 1] - 1, grid_->columnCount() - 1));
  }
  if (told != selectionModel()->selection()) {
    selectionModel()->select(told, QItemSelectionModel::ClearAndSelect);
  }
}

void GridTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!drag_.active()) return;
  QPainter painter(viewport());
  const int thick = dp(this, 4);
  painter.fillRect(0, drag_.lineY() - thick / 2, viewport()->width(), thick,
                   QGuiApplication::palette().color(role::accent));
}

bool GridTable::viewportEvent(QEvent* event) {
  // Shows only the list's own tool tip; Qt would show that of the frame around it when there is none.
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), this);
    return true;
  }
  return QTableView::viewportEvent(event);
}

bool GridTable::eventFilter(QObject* watched, QEvent* event) {
  if (watched == horizontalHeader()->viewport() && event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const int section = horizontalHeader()->logicalIndexAt(help->pos());
    if (headerTip_ && section >= 0) QToolTip::showText(help->globalPos(), headerTip_(section + 1), this);
    return true;
  }
  return QTableView::eventFilter(watched, event);
}

}  // namespace widgets
