// What the program's own widgets are to somebody who does not see them: a role, and a name that says what
// stands there.
#pragma once

namespace desktop {

// For the whole application; asking again changes nothing.
void installAccessibleFaces();

}  // namespace desktop
