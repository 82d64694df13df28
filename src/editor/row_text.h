// Rows of the list as text: a row a line, its cells parted by tabs, as spreadsheets copy and paste them. A
// line holds kind, cadence, chainring, gear, duration, announcement and heart-rate target; a cell without a
// value is empty.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/grid.h"

namespace editor {

// The lines of those rows of the grid; rows that hold nothing a line could tell are left out.
[[nodiscard]] std::string textOfRows(const platform::Grid& grid, const std::vector<int>& rows);

struct ReadRows {
  std::vector<platform::Grid::Cells> rows;  // whole rows made by hand, not numbered yet
  std::vector<std::string> refused;         // the cells that could not be taken, each in the rider's words
  std::size_t refusedCount = 0;             // of which only the first are told
};

// How many rows a text asks for at most; quick, so that a text that is too long need not be read.
[[nodiscard]] int linesIn(std::string_view text);
// Reads what any program may have copied. A cell must be one that can be typed on a row of its kind; a line
// of which nothing can be taken makes no row.
[[nodiscard]] ReadRows readRows(std::string_view text);

}  // namespace editor
