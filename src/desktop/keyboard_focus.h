// Where the keyboard goes when the widget that has it leaves the screen.
#pragma once

#include <QWidget>

namespace desktop {

// The widget is about to be hidden: its page takes the keyboard from it, since Qt would hand it to whatever
// comes next.
void leaveKeyboard(const QWidget& widget);

}  // namespace desktop
