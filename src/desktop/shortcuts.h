// The keyboard shortcuts of the main page, the editor and the window.
#pragma once

#include <QWidget>

#include "app/program.h"
#include "desktop/binder.h"
#include "desktop/main_window.h"

namespace desktop {

// Space pauses and resumes a ride, Escape offers to cancel it, F11 fills the screen. In the editor the usual
// keys open, save, undo, redo and start.
void addShortcuts(app::Program& program, Binder& binder, MainWindow& window, QWidget& mainPage,
                  QWidget& editorPage);

}  // namespace desktop
