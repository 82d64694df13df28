// Presents the program's own widgets to screen readers, each with a role and a name that includes its text.
#pragma once

class QWidget;

namespace widgets {

// For the whole application; calling it again changes nothing.
void installAccessibleFaces();
// To be called when the text that a widget draws has changed.
void announceNewText(QWidget& drawn);

}  // namespace widgets
