// Where the keyboard goes when the widget that has it is hidden or disabled.
#pragma once

#include <QWidget>

namespace desktop {

// Moves the focus from the widget to its page; false if it was elsewhere. To be called before the widget is
// hidden or disabled: Qt would give the focus to the next widget, which a key would then press.
bool handFocusToPage(const QWidget& widget);
// Gives the widget the focus, if it is still the page that has it.
void takeFocusFromPage(QWidget& widget);

}  // namespace desktop
