// The editor's grid as a session: its columns, the kinds of row and how each is made, the tests on a row.
// The grid's texts are the only store of the session being composed.
#pragma once

#include <string>
#include <vector>

#include "platform/grid.h"

namespace model {

// The columns by number.
namespace column {
inline constexpr int number = 1;  // hidden; written once and never renumbered
inline constexpr int cycleName = 2;
inline constexpr int sessionName = 3;
inline constexpr int sequence = 4;
inline constexpr int cadence = 5;
inline constexpr int chainring = 6;
inline constexpr int gear = 7;
inline constexpr int repeat = 8;
inline constexpr int times = 9;
inline constexpr int duration = 10;
inline constexpr int announcement = 11;
inline constexpr int deleteMark = 12;
inline constexpr int heartRate = 13;
}  // namespace column

inline constexpr int columnCount = 13;

namespace row_style {
inline constexpr platform::CellStyle firstRow{platform::Colour::rgb(0, 60, 116), true};
inline constexpr platform::CellStyle finished{platform::Colour::rgb(0, 0, 255), false};
inline constexpr platform::CellStyle unfinished{platform::Colour::rgb(255, 0, 0), true};
}  // namespace row_style

inline constexpr int cycleColumnWidth = 1700;         // twips, in cycle mode
inline constexpr int sessionColumnWidth = 2400;       // twips, after each relayout
inline constexpr int freshSessionColumnWidth = 2000;  // twips, when the list is made

// The thirteen columns of a fresh list.
[[nodiscard]] std::vector<platform::GridColumn> gridColumns(bool cycleMode);

struct SequenceTexts {
  std::string sequence;
  std::string cadence;
  std::string chainring;
  std::string gear;
  std::string duration;
  std::string announcement;
  std::string heartRate;
};

[[nodiscard]] std::vector<std::string> firstRow();
// `number` is the text of column 1.
[[nodiscard]] std::vector<std::string> handMadeRow(int number, const std::string& cycleName);
[[nodiscard]] std::vector<std::string> loadedRow(int number, const std::string& sessionName,
                                                 SequenceTexts texts);
// A row without a sequence: the announcement of a repeat, or the end of a list.
[[nodiscard]] std::vector<std::string> closingRow(int number, const std::string& sessionName);

// Whether the last row's kind or duration is not chosen yet; false for an empty grid.
[[nodiscard]] bool lastRowUnfinished(const platform::Grid& grid);
// Whether the row lacks something that a ride needs: such rows are shown in red.
[[nodiscard]] bool isUnfinished(const platform::Grid& grid, int row);
// Whether the row holds a sequence, which the session file keeps.
[[nodiscard]] bool isSequence(const platform::Grid& grid, int row);
// Whether the row goes into a ride. Repeat rows, the closing row and rows without a chosen duration do not.
[[nodiscard]] bool isRidden(const platform::Grid& grid, int row);
// Whether the row's duration can be ridden: eight characters as the boxes of the duration write them, or the
// dashes of a spoken row.
[[nodiscard]] bool hasDuration(const platform::Grid& grid, int row);
// Whether the cell has a meaning on its row, so that a value can be chosen for it.
[[nodiscard]] bool takesValue(const platform::Grid& grid, int row, int column);
// The nearest such cell of the row to the right (`step` 1) or to the left (-1); 0 where there is none.
[[nodiscard]] int nextValueColumn(const platform::Grid& grid, int row, int column, int step);
// A row made by hand in which nothing has been chosen yet.
[[nodiscard]] bool isBlankRow(const platform::Grid& grid, int row);

}  // namespace model
