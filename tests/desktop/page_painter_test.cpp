#include "widgets/page_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "desktop/page_grid.h"

namespace widgets {
namespace {

TEST(PagePainter, StaysInsideThePageAndItsCells) {
  QImage paper(1654, 1169, QImage::Format_RGB32);  // A4 at 142 dots an inch
  paper.setDotsPerMeterX(5591);
  paper.setDotsPerMeterY(5591);
  for (const int rows : {1, 35}) {
    paper.fill(Qt::white);
    QPainter painter(&paper);
    const QRectF area(40, 40, 1574, 1089);
    const double bottom = paintGrid(painter, area, support::pageGrid(rows), true);
    const double end = paintLine(painter, area, bottom, QStringLiteral("Edité Le(16/11/2026)"));
    painter.end();
    EXPECT_LE(end, area.bottom()) << rows;
    int outside = 0;
    int coloured = 0;
    for (int y = 0; y < paper.height(); ++y) {
      for (int x = 0; x < paper.width(); ++x) {
        const QColor dot = paper.pixelColor(x, y);
        if (dot != Qt::white && !area.adjusted(-2, -2, 2, 2).contains(x, y)) ++outside;
        if (dot.saturation() > 100) ++coloured;
      }
    }
    EXPECT_EQ(outside, 0) << rows;
    EXPECT_GT(coloured, 100 * rows);
  }
}

}  // namespace
}  // namespace widgets
