// Where the keyboard goes when the widget that has it leaves the screen or is closed.
#pragma once

#include <QWidget>

namespace desktop {

// The widget is about to be hidden or closed: its page takes the keyboard from it, since Qt would hand it to
// whatever comes next. Whether the widget had it.
bool leaveKeyboard(const QWidget& widget);
// The widget is open again: it takes the keyboard back where nobody else has asked for it meanwhile.
void takeKeyboardBack(QWidget& widget);

}  // namespace desktop
