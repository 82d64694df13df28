// What the cell editor offers and explains, by column.
#pragma once

#include <string>
#include <vector>

#include "forms/creer_cycle.h"

namespace editor {

// "Toutes les Zones constituée de (-----)…": the words on a cell that cannot be edited.
extern const std::string dashHelp;

// The entries of the cell editor for a column; none for a column that has no list.
[[nodiscard]] std::vector<std::string> cellEntries(forms::CreerCycle& form, int column);
// The help text of a click on a cell of the column that holds `cell`.
[[nodiscard]] std::string columnHelp(int column, const std::string& cell);

}  // namespace editor
