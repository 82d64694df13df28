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

// Where the table's colours stand in a palette, so that a widget finds them without asking anybody.
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
// The style sheet at a scale of 1 for a window of 1280 x 800.
[[nodiscard]] QString themeStyleSheet(ThemeMode mode, double scale);
// Gives the whole application the fonts and the palette.
void applyTheme(ThemeMode mode);
// What the platform's own colours say of the desktop's preference, before any theme is applied.
[[nodiscard]] ThemeMode platformTheme();

[[nodiscard]] bool isDark(const QPalette& palette);
[[nodiscard]] QColor familyColour(const QPalette& palette, model::EffortFamily family);
// A colour that the logic asks for, as this theme shows it.
[[nodiscard]] QColor onScreen(const QPalette& palette, const platform::Colour& colour);
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, double share);

[[nodiscard]] QString sansFamily();

// How much larger than at 1280 x 800 the widget's window shows everything.
[[nodiscard]] double scaleOf(const QWidget* widget);
// A length of the design, in the widget's pixels.
[[nodiscard]] int dp(const QWidget* widget, double length);
[[nodiscard]] QFont sansFont(const QWidget* widget, double size, int weight = QFont::Normal);
[[nodiscard]] QFont numberFont(const QWidget* widget, double size);

}  // namespace widgets
