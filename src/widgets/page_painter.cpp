#include "widgets/page_painter.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>

#include "model/effort_family.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace widgets {

namespace {

constexpr double pointsPerTwip = 1.0 / 20;
constexpr double footerHeight = 360;                       // twips, the footer with the space above it
constexpr std::array<double, 4> fontSizes{9, 8, 7, 6.25};  // points, the first that fits is taken
const QColor ink(0, 0, 0);
const QColor cellLine(0x9a, 0xa5, 0xb0);
const QColor headLine(0x20, 0x28, 0x30);

// Lengths on the device: `unit` is one twip, fonts are set in points.
struct Paper {
  QPainter& painter;
  double unit;

  explicit Paper(QPainter& target) : painter(target), unit(target.device()->logicalDpiX() / 1440.0) {}
  QFont font(double points, bool bold) const {
    QFont chosen(sansFamily());
    chosen.setPixelSize(std::max(1, static_cast<int>(std::lround(points / pointsPerTwip * unit))));
    chosen.setBold(bold);
    chosen.setStyleStrategy(QFont::PreferNoShaping);  // "=>" must not become an arrow: it is searched for
    return chosen;
  }
};

int wrapFlags(Qt::Alignment place) {
  return static_cast<int>(place) | Qt::TextWordWrap;
}

// Takes the largest font in which the text fits its cell, and shortens a text too long for the smallest.
void paintText(const Paper& paper, const QRectF& cell, const QString& cellText, Qt::Alignment place,
               bool bold) {
  QString text = cellText.trimmed();  // session files pad the names of announcements with blanks
  const QRectF inside = cell.adjusted(40 * paper.unit, 10 * paper.unit, -40 * paper.unit, -25 * paper.unit);
  QFont font;
  bool fits = false;
  for (const double points : fontSizes) {
    font = paper.font(points, bold);
    const QFontMetricsF metrics(font, paper.painter.device());
    const QRectF needed = metrics.boundingRect(inside, wrapFlags(place), text);
    fits = needed.width() <= inside.width() && needed.height() <= inside.height();
    if (fits) break;
  }
  if (!fits)
    text = QFontMetricsF(font, paper.painter.device()).elidedText(text, Qt::ElideRight, inside.width());
  paper.painter.setFont(font);
  paper.painter.setPen(ink);
  paper.painter.drawText(inside, fits ? wrapFlags(place) : static_cast<int>(place), text);
}

Qt::Alignment placeOf(platform::CellPlace place) {
  switch (place) {
    case platform::CellPlace::Left:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case platform::CellPlace::Centre:
      return Qt::AlignCenter;
    case platform::CellPlace::CentreBottom:
      return Qt::AlignHCenter | Qt::AlignBottom;
  }
  return Qt::AlignCenter;
}

// Draws a bar of the family's colour at the cell's left edge.
void paintFamily(const Paper& paper, const QRectF& cell, const std::string& kind) {
  const QColor colour = familyColour(themePalette(ThemeMode::Light), model::effortFamily(kind));
  const double gap = 25 * paper.unit;
  paper.painter.fillRect(
      QRectF(cell.left() + gap, cell.top() + gap, 90 * paper.unit, cell.height() - 2 * gap), colour);
}

bool namesAKind(const std::string& text) {
  return !text.empty() && text != " " && !text.starts_with("-");
}

}  // namespace

double paintGrid(QPainter& painter, const QRectF& area, const platform::PageGrid& grid, bool inColour) {
  const Paper paper(painter);
  double twipsWide = 0;
  for (const auto& column : grid.columns) twipsWide += column.width;
  double twipsHigh = grid.headHeight;
  for (const auto& row : grid.rows) twipsHigh += row.height;
  if (twipsWide <= 0 || twipsHigh <= 0) return area.top();
  const double acrossScale = area.width() / twipsWide;
  const double downScale = std::min(acrossScale, (area.height() - footerHeight * paper.unit) / twipsHigh);

  painter.save();
  painter.fillRect(area, Qt::white);
  double top = area.top();
  const auto paintRow = [&](int height, const auto& paintCell) {
    double left = area.left();
    const double high = height * downScale;
    for (std::size_t c = 0; c < grid.columns.size(); ++c) {
      const QRectF cell(left, top, grid.columns[c].width * acrossScale, high);
      paintCell(c, cell);
      painter.setPen(QPen(cellLine, 10 * paper.unit));
      painter.drawRect(cell);
      left += cell.width();
    }
    top += high;
  };
  paintRow(grid.headHeight, [&](std::size_t c, const QRectF& cell) {
    paintText(paper, cell, toQt(grid.columns[c].head), placeOf(grid.columns[c].headPlace), true);
  });
  const double underHead = top;
  for (const auto& row : grid.rows) {
    paintRow(row.height, [&](std::size_t c, const QRectF& cell) {
      if (c >= row.cells.size()) return;
      const bool marked = inColour && static_cast<int>(c) == grid.kindColumn && namesAKind(row.cells[c]);
      if (marked) paintFamily(paper, cell, row.cells[c]);
      paintText(paper, marked ? cell.adjusted(100 * paper.unit, 0, 0, 0) : cell, toQt(row.cells[c]),
                Qt::AlignCenter, false);
    });
  }
  painter.setPen(QPen(headLine, 25 * paper.unit));
  painter.drawLine(QPointF(area.left(), underHead), QPointF(area.right(), underHead));
  painter.restore();
  return top;
}

double paintLine(QPainter& painter, const QRectF& area, double top, const QString& line) {
  const Paper paper(painter);
  const QRectF place(area.left(), top, area.width(), std::max(0.0, area.bottom() - top));
  painter.setFont(paper.font(fontSizes.front(), false));
  painter.setPen(ink);
  const QRectF below = place.adjusted(0, 100 * paper.unit, 0, 0);
  QRectF drawn;
  painter.drawText(below, static_cast<int>(Qt::AlignLeft | Qt::AlignTop), line, &drawn);
  return drawn.bottom();
}

}  // namespace widgets
