// What the program's own widgets are to somebody who does not see them: a role, and a name that says what
// stands there.
#pragma once

class QWidget;

namespace widgets {

// For the whole application; asking again changes nothing.
void installAccessibleFaces();
// To be called when the text that a widget draws has changed.
void announceNewText(QWidget& drawn);

}  // namespace widgets
