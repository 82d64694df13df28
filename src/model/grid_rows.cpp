#include "model/grid_rows.h"

#include <algorithm>
#include <utility>

#include "model/time_value.h"
#include "model/vocabulary.h"
#include "platform/text.h"

namespace model {
namespace {

std::string dashes() {
  return std::string(noMeaning);
}

}  // namespace

std::vector<platform::GridColumn> gridColumns(bool cycleMode) {
  using platform::Alignment;
  return {{"X", 0, Alignment::Left},
          {"Nom de Cycle", cycleMode ? cycleColumnWidth : 0, Alignment::Centre},
          {"Nom de Séance", freshSessionColumnWidth, Alignment::Left},
          {"Séquence", 1250, Alignment::Centre},
          {"Cadence", 1200, Alignment::Centre},
          {"Plateau", 1300, Alignment::Centre},
          {"Braquet", 1300, Alignment::Centre},
          {"Répéter", 1100, Alignment::Centre},
          {"Fois", 800, Alignment::Centre},
          {"Durée H:M:S", 1835, Alignment::Centre},
          {"Annonces", 1400, Alignment::Centre},
          {"X", 600, Alignment::Centre},
          {"Fréquence Cardiaque", 1250, Alignment::Centre}};
}

std::vector<std::string> firstRow() {
  const std::string none = dashes();
  return {"1",
          "Nouveau Cycle ",
          "Nouvelle Séance",
          none,
          none,
          none,
          none,
          "Non",
          "0",
          std::string(noDuration),
          none,
          "--",
          "Fréq./Card."};
}

std::vector<std::string> handMadeRow(int number, const std::string& cycleName) {
  const std::string none = dashes();
  const std::string blank(emptyCell);
  return {std::to_string(number),
          cycleName,
          std::string(handMade),
          blank,
          blank,
          blank,
          blank,
          none,
          none,
          std::string(noDuration),
          none,
          "x",
          std::string(noTarget)};
}

std::vector<std::string> loadedRow(int number, const std::string& sessionName, SequenceTexts texts) {
  std::vector<std::string> row(columnCount, dashes());
  const auto cell = [&row](int column) -> std::string& { return row[static_cast<std::size_t>(column - 1)]; };
  const bool spoken = texts.sequence == vocalAnnouncement;
  cell(column::number) = std::to_string(number);
  cell(column::sessionName) = sessionName;
  cell(column::sequence) = std::move(texts.sequence);
  cell(column::cadence) = std::move(texts.cadence);
  cell(column::chainring) = std::move(texts.chainring);
  cell(column::gear) = std::move(texts.gear);
  cell(column::duration) = std::move(texts.duration);
  if (spoken) cell(column::announcement) = std::move(texts.announcement);
  cell(column::deleteMark) = "x";
  cell(column::heartRate) = std::move(texts.heartRate);
  return row;
}

std::vector<std::string> closingRow(int number, const std::string& sessionName) {
  const std::string none = dashes();
  return {std::to_string(number), none, sessionName, none, none, none, none, none, none, none, none, "x",
          std::string(noTarget)};
}

bool lastRowUnfinished(const platform::Grid& grid) {
  const int last = grid.rowCount();
  return last > 0 &&
         (grid.text(last, column::sequence) == emptyCell || grid.text(last, column::duration) == noDuration);
}

// A row of blanks comes from a file that ends too early.
bool isUnfinished(const platform::Grid& grid, int row) {
  const std::string& sequence = grid.text(row, column::sequence);
  if (platform::trim(sequence).empty() || grid.text(row, column::duration) == noDuration) return true;
  if (sequence == vocalAnnouncement) return grid.text(row, column::announcement) == emptyCell;
  return (isSequence(grid, row) || isRidden(grid, row)) && !hasDuration(grid, row);
}

bool isSequence(const platform::Grid& grid, int row) {
  const std::string& sequence = grid.text(row, column::sequence);
  return sequence != emptyCell && sequence != noMeaning;
}

bool isRidden(const platform::Grid& grid, int row) {
  const std::string& duration = grid.text(row, column::duration);
  const bool none = duration == noMeaning && grid.text(row, column::announcement) == noMeaning;
  return !none && duration != noDuration;
}

bool hasDuration(const platform::Grid& grid, int row) {
  if (grid.text(row, column::sequence) == vocalAnnouncement) return true;
  const std::string& duration = grid.text(row, column::duration);
  const std::optional<int> seconds = parseSeconds(duration);
  return seconds && formatSeconds(*seconds) == duration;
}

bool takesValue(const platform::Grid& grid, int row, int col) {
  if (row < 1 || row > grid.rowCount() || col < column::sequence || col > grid.columnCount()) return false;
  if (col == column::deleteMark || grid.text(row, col).starts_with("--")) return false;
  return row > 1 || (col != column::duration && col != column::heartRate);
}

int nextValueColumn(const platform::Grid& grid, int row, int col, int step) {
  for (int c = col + step; c >= 1 && c <= grid.columnCount(); c += step) {
    if (takesValue(grid, row, c)) return c;
  }
  return 0;
}

bool isBlankRow(const platform::Grid& grid, int row) {
  if (row < 2 || row > grid.rowCount()) return false;
  const std::vector<std::string> blank = handMadeRow(0, {});
  const platform::Grid::Cells& cells = *grid.cells(row);
  return std::equal(cells.begin() + column::cycleName, cells.end(), blank.begin() + column::cycleName);
}

}  // namespace model
