#include "widgets/check_list.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "widgets/picture.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

constexpr int boxSide = 20;
constexpr int boxInset = 14;
constexpr int textInset = 48;

class RowPainter final : public QStyledItemDelegate {
 public:
  explicit RowPainter(CheckList* list) : QStyledItemDelegate(list), list_(list) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const platform::Grid& grid = *list_->grid();
    const int row = index.row() + 1;
    const int column = index.column() + 1;
    const QPalette palette = QGuiApplication::palette();
    paintCellGround(*painter, option.rect, *list_, row, column);
    const bool title = column == 1;
    if (title) paintBox(*painter, list_->boxRect(row), grid.checked(row), palette);
    painter->setPen(palette.color(title ? role::text : role::second));
    painter->setFont(sansFont(list_, 15, title && grid.checked(row) ? QFont::DemiBold : QFont::Normal));
    const QRect place = option.rect.adjusted(dp(list_, title ? textInset : 12), 0, -dp(list_, 4), 0);
    painter->drawText(
        place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter->fontMetrics().elidedText(toQt(grid.text(row, column)), Qt::ElideRight, place.width()));
  }

 private:
  static void paintBox(QPainter& painter, const QRect& box, bool on, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(on ? role::accent : role::second), box.width() / 10.0));
    painter.setBrush(palette.color(on ? role::accent : role::ground));
    painter.drawRoundedRect(QRectF(box).adjusted(1, 1, -1, -1), box.width() * 0.28, box.width() * 0.28);
    if (on) {
      const double side = box.width();
      painter.setPen(QPen(palette.color(QPalette::HighlightedText), side / 8, Qt::SolidLine, Qt::RoundCap,
                          Qt::RoundJoin));
      const QPointF corner = box.topLeft();
      const QPointF tick[] = {corner + QPointF(0.28, 0.52) * side, corner + QPointF(0.44, 0.68) * side,
                              corner + QPointF(0.73, 0.34) * side};
      painter.drawPolyline(tick, 3);
    }
    painter.restore();
  }

  CheckList* list_;
};

}  // namespace

CheckList::CheckList(QWidget* parent) : GridTable(parent) {
  setItemDelegate(new RowPainter(this));
  setCursorColumn(1);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QRect CheckList::boxRect(int row) const {
  const QRect cell = cellRect(row, 1);
  const int side = dp(this, boxSide);
  return {cell.left() + dp(this, boxInset), cell.center().y() - side / 2, side, side};
}

void CheckList::mousePressEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  const Cell cell = cellAt(at);
  const bool onBox = cell.row > 0 && cell.column == 1 && at.x() < boxRect(cell.row).right() + dp(this, 8);
  if (event->button() == Qt::LeftButton && onBox) {
    setFocus(Qt::MouseFocusReason);
    toggle(cell.row);
  } else {
    GridTable::mousePressEvent(event);
  }
}

void CheckList::keyPressEvent(QKeyEvent* event) {
  const int row = grid() != nullptr ? grid()->selectedRow() : 0;
  if (event->key() == Qt::Key_Space && row > 0) {
    toggle(row);
  } else {
    GridTable::keyPressEvent(event);
  }
}

void CheckList::toggle(int row) {
  act([row](platform::Grid& list) {
    list.select(row);
    list.tickRow(row, !list.checked(row));
  });
}

}  // namespace widgets
