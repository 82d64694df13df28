// Draws a page of a list for paper, dark on white, each text inside its cell. Lengths are device pixels.
#pragma once

#include <QPainter>

#include "platform/printer.h"

namespace widgets {

// Draws the grid from the top left of `area`, as wide as it, and leaves room for one line of text below. In
// colour, each kind of effort has its family's colour beside it. Returns the bottom of the grid.
double paintGrid(QPainter& painter, const QRectF& area, const platform::PageGrid& grid, bool inColour);
// Draws one line of text below `top` and returns its bottom.
double paintLine(QPainter& painter, const QRectF& area, double top, const QString& line);

}  // namespace widgets
