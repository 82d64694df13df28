// Scales everything in a window to its size: the lengths of the style sheet and of the layouts.
#pragma once

#include <QSize>
#include <QWidget>

#include "widgets/theme.h"

namespace desktop {

// For a screen of 1280 x 800 at 200 %, less the frame of the window.
constexpr double smallestScale = 0.45;

// The scale at which `design` fits into `size`, in steps of 5 %; never below smallestScale.
[[nodiscard]] double fittingScale(const QSize& size, const QSize& design);
// Gives `window` the style sheet, and the layouts in `contents` the lengths, of that scale.
void scaleWindow(QWidget& window, QWidget& contents, widgets::ThemeMode mode, double scale);
// Gives the layouts in a part of a window the lengths of the window's scale.
void scaleContents(QWidget& contents, double scale);

}  // namespace desktop
