// The grid's columns on the page: widths by cycle mode and list mode.
#pragma once

#include "forms/creer_cycle.h"

namespace editor {

// Sets the columns back to their widths, which the rider may have dragged or a mode changed.
void recalerColonnes(forms::CreerCycle& form);
// The grid's own size in the normal or the maximised list mode.
void sizeGrid(forms::CreerCycle& form);

}  // namespace editor
