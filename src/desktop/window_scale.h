// Everything in a window grows with it: the style sheet's lengths and the layouts' own.
#pragma once

#include <QSize>
#include <QWidget>

#include "widgets/theme.h"

namespace desktop {

// A screen of 1280 x 800 at 200 %, less the frame of the window.
constexpr double smallestScale = 0.45;

// How much larger than its design a window is, in steps that keep a drag from stuttering.
[[nodiscard]] double fittingScale(const QSize& size, const QSize& design);
// Shows all of `contents` at that scale, under the style sheet of its window.
void scaleWindow(QWidget& window, QWidget& contents, widgets::ThemeMode mode, double scale);

}  // namespace desktop
