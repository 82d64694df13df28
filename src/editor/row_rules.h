// What a pick in one cell does to the others of its row, and how the first row's two repeat cells are
// matched.
#pragma once

#include <string>

#include "platform/grid.h"

namespace editor {

// Fits the row's other cells to its kind of sequence. `duration` is written where the kind has one. The
// heart-rate target is emptied, and so must be chosen last.
void applyRowRules(platform::Grid& grid, int row, const std::string& duration);

// After a pick in the first row's "Répéter" or "Fois". False where the list has nothing to repeat.
[[nodiscard]] bool applyRepetition(platform::Grid& grid, int column, const std::string& picked);

}  // namespace editor
