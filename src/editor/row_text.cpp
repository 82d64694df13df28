#include "editor/row_text.h"

#include <algorithm>
#include <array>
#include <optional>

#include "model/grid_rows.h"
#include "model/time_value.h"
#include "model/vocabulary.h"
#include "platform/text.h"

namespace editor {
namespace {

namespace column = model::column;

struct TextColumn {
  int column;
  const char* header;  // as over the list
};

constexpr std::array<TextColumn, 7> textColumns{{{column::sequence, "Séquence"},
                                                 {column::cadence, "Cadence"},
                                                 {column::chainring, "Plateau"},
                                                 {column::gear, "Braquet"},
                                                 {column::duration, "Durée H:M:S"},
                                                 {column::announcement, "Annonces"},
                                                 {column::heartRate, "Fréquence Cardiaque"}}};

constexpr std::size_t longestCell = 50;  // characters: the widest field of a session file
constexpr std::size_t mostTold = 10;     // refused cells
constexpr std::size_t mostQuoted = 30;   // characters of each

// A tab or a line break inside a cell would make several of it.
std::string cellAsText(const std::string& cell) {
  if (cell == model::noMeaning) return {};
  std::string text = platform::trim(cell);
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
  return text;
}

std::string& at(platform::Grid::Cells& cells, int col) {
  return cells[static_cast<std::size_t>(col - 1)];
}

// Which texts a cell can take: none that the list uses to mark cells without a meaning, and nothing that a
// rider could not type.
bool canBeTyped(const std::string& text) {
  const bool control =
      std::any_of(text.begin(), text.end(), [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; });
  return !control && !text.starts_with("--") && platform::length(text) <= longestCell;
}

class LineReader {
 public:
  LineReader(ReadRows& into, std::size_t line) : into_(into), line_(line) {}

  void read(std::string_view line) {
    std::vector<std::string> texts = platform::split(line, '\t');
    for (std::string& text : texts) {
      text = platform::trim(text);
      if (text == model::noMeaning) text.clear();
    }
    const auto last =
        std::find_if(texts.rbegin(), texts.rend(), [](const std::string& text) { return !text.empty(); });
    texts.erase(last.base(), texts.end());
    if (texts.empty() || texts.front() == textColumns.front().header) return;
    texts.resize(std::max(texts.size(), textColumns.size()));
    fill(texts);
    for (std::size_t i = textColumns.size(); i < texts.size(); ++i) {
      if (!texts[i].empty()) refuse("Colonne " + std::to_string(i + 1), texts[i]);
    }
  }

 private:
  void fill(const std::vector<std::string>& texts) {
    platform::Grid::Cells row = model::handMadeRow(0, std::string(model::endOfList));
    bool taken = false;
    const std::string& kind = texts.front();
    shape(row, canBeTyped(kind) ? kind : std::string());
    for (std::size_t i = 0; i < textColumns.size(); ++i) {
      if (texts[i].empty()) continue;
      const int col = textColumns.at(i).column;
      const std::optional<std::string> value = valueOf(row, col, texts[i]);
      if (value) at(row, col) = *value;
      if (!value) refuse(textColumns.at(i).header, texts[i]);
      taken = taken || value.has_value();
    }
    if (taken) into_.rows.push_back(std::move(row));
  }
  // Gives the row the cells that have a meaning for its kind.
  static void shape(platform::Grid::Cells& row, const std::string& kind) {
    if (kind.empty()) return;
    at(row, column::heartRate) = model::emptyCell;
    if (kind != model::vocalAnnouncement) return;
    for (int col = column::cadence; col <= column::heartRate; ++col) {
      if (col != column::deleteMark) at(row, col) = model::noMeaning;
    }
    at(row, column::announcement) = model::emptyCell;
  }
  static std::optional<std::string> valueOf(platform::Grid::Cells& row, int col, const std::string& text) {
    if (at(row, col) == model::noMeaning || !canBeTyped(text)) return std::nullopt;
    if (col != column::duration) return text;
    // "10:00" could be minutes or hours.
    if (std::ranges::count(text, ':') != 2) return std::nullopt;
    const std::optional<int> seconds = model::parseSeconds(text);
    if (!seconds) return std::nullopt;
    return model::formatSeconds(*seconds);
  }
  void refuse(const std::string& where, const std::string& text) {
    if (++into_.refusedCount > mostTold) return;
    const std::string quoted =
        platform::length(text) > mostQuoted ? platform::left(text, mostQuoted) + "..." : text;
    into_.refused.push_back("Ligne " + std::to_string(line_) + ", " + where + " : (" + quoted + ")");
  }

  ReadRows& into_;
  std::size_t line_;
};

}  // namespace

std::string textOfRows(const platform::Grid& grid, const std::vector<int>& rows) {
  std::string all;
  for (const int row : rows) {
    std::string line;
    bool any = false;
    for (const TextColumn& each : textColumns) {
      const std::string cell = cellAsText(grid.text(row, each.column));
      any = any || (!cell.empty() && each.column != column::heartRate);
      if (&each != &textColumns.front()) line += '\t';
      line += cell;
    }
    if (any) all += line + '\n';
  }
  return all;
}

int linesIn(std::string_view text) {
  int lines = 0;
  bool filled = false;
  for (const char c : text) {
    if (c == '\n' || c == '\r') {
      lines += filled ? 1 : 0;
      filled = false;
    } else {
      filled = filled || (c != ' ' && c != '\t');
    }
  }
  return lines + (filled ? 1 : 0);
}

ReadRows readRows(std::string_view text) {
  ReadRows read;
  std::size_t number = 1;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    LineReader(read, number++).read(text.substr(0, end));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
  }
  return read;
}

}  // namespace editor
