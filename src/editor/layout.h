// The grid's columns on the page: widths by cycle mode and list mode.
#pragma once

#include <array>

#include "forms/screens.h"

namespace editor {

// Sets the columns back to their widths, which the rider may have dragged or a mode changed.
void recalerColonnes(forms::CreerCycle& form);
// The captions that belong to the list: its name and title, the main screen's, the two buttons that tell the
// mode.
[[nodiscard]] std::array<platform::Property<std::string>*, 5> listCaptions(forms::Screens& screens);
// Gives a row that was written as a whole its looks: the first row's, or those of a finished one.
void styleRow(platform::Grid& grid, int row);
// The grid's own size in the normal or the maximised list mode.
void sizeGrid(forms::CreerCycle& form);

}  // namespace editor
