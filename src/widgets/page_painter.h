// A piece of a list, drawn for paper: dark on white, grid lines, each text inside its cell.
#pragma once

#include <QPainter>

#include "platform/printer.h"

namespace widgets {

// Draws the grid from the area's top left, as wide as the area and no higher than leaves room for one line of
// text. In colour, a kind of effort has its family's colour beside it. Gives the grid's bottom.
double paintGrid(QPainter& painter, const QRectF& area, const platform::PageGrid& grid, bool inColour);
// One line of text below `top`. Gives its bottom.
double paintLine(QPainter& painter, const QRectF& area, double top, const QString& line);

}  // namespace widgets
