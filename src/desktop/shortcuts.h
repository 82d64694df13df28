// The keys that work a whole page: what they press, and the few that are the window's own.
#pragma once

#include <QWidget>

#include "app/program.h"
#include "desktop/binder.h"
#include "desktop/main_window.h"

namespace desktop {

// Hands busy and two metres away: Space pauses and resumes a ride, Escape offers to cancel it, F11 fills the
// screen. In the editor the usual keys open, save, undo, redo and start.
void addShortcuts(app::Program& program, Binder& binder, MainWindow& window, QWidget& mainPage,
                  QWidget& editorPage);

}  // namespace desktop
