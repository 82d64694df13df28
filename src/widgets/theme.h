// Colours, fonts and sizes of the windows, dark and light. Colours reach the widgets through the
// application's palette and one style sheet; sizes are written for a window of 1280 x 800 and grow with it.
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>
#include <QWidget>

#include "model/effort_family.h"
#include "platform/property.h"

namespace widgets {

enum class ThemeMode { Dark, Light };

// The roles under which a palette holds the theme's colours.
namespace role {
inline constexpr QPalette::ColorRole ground = QPalette::Window;
inline constexpr QPalette::ColorRole card = QPalette::Base;
inline constexpr QPalette::ColorRole line = QPalette::Mid;
inline constexpr QPalette::ColorRole text = QPalette::WindowText;
inline constexpr QPalette::ColorRole second = QPalette::Dark;
inline constexpr QPalette::ColorRole accent = QPalette::Highlight;
inline constexpr QPalette::ColorRole wrong = QPalette::BrightText;
inline constexpr QPalette::ColorRole good = QPalette::Link;
inline constexpr QPalette::ColorRole warning = QPalette::LinkVisited;
}  // namespace role

[[nodiscard]] QPalette themePalette(ThemeMode mode);
// The style sheet with its sizes multiplied by `scale`, which is 1 for a window of 1280 x 800.
[[nodiscard]] QString themeStyleSheet(ThemeMode mode, double scale);
// Gives the whole application the fonts and the palette.
void applyTheme(ThemeMode mode);
// The desktop's preference, guessed from the platform's own colours; to be called before applyTheme().
[[nodiscard]] ThemeMode platformTheme();

[[nodiscard]] bool isDark(const QPalette& palette);
[[nodiscard]] QColor familyColour(const QPalette& palette, model::EffortFamily family);
// The theme's version of a colour that the logic asks for, readable on its ground.
[[nodiscard]] QColor onScreen(const QPalette& palette, const platform::Colour& colour);
// `share` is how much of `b` is in the mixture, 0 to 1.
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, double share);

[[nodiscard]] QString sansFamily();

// The scale of the widget's window, 1 at 1280 x 800.
[[nodiscard]] double scaleOf(const QWidget* widget);
// A length of the design for 1280 x 800, in px at the scale of the widget's window.
[[nodiscard]] int dp(const QWidget* widget, double length);
[[nodiscard]] QFont sansFont(const QWidget* widget, double size, int weight = QFont::Normal);
[[nodiscard]] QFont numberFont(const QWidget* widget, double size);

}  // namespace widgets
