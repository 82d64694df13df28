// Where the keyboard goes when the widget that has it is hidden or disabled.
#pragma once

#include <QWidget>

namespace desktop {

// To be called before the widget is hidden or disabled, since Qt would move the focus on to the next widget,
// which a key would then press. Gives the focus to the page instead; whether the widget had it.
bool handFocusToPage(const QWidget& widget);
// Gives the widget the focus back, unless it has gone elsewhere meanwhile.
void takeFocusFromPage(QWidget& widget);

}  // namespace desktop
