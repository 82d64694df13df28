#include "editor/row_commands.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "editor/layout.h"
#include "editor/row_text.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "model/vocabulary.h"

namespace editor {
namespace {

namespace column = model::column;

constexpr int mostRepeats = 99;
constexpr int usualRepeats = 2;
constexpr const char* nothingToCopy = "Ces Lignes n'ont Rien à Copier...";

std::vector<int> span(int first, int last) {
  std::vector<int> rows(static_cast<std::size_t>(std::max(0, last - first + 1)));
  std::iota(rows.begin(), rows.end(), first);
  return rows;
}

}  // namespace

RowCommands::RowCommands(const context::Context& context, Lines& lines)
    : context_(context), lines_(lines), editor_(context.screens.editor), grid_(editor_.ListView1) {
  editor_.mnCopyRows.click.handle([this] { copy(); });
  editor_.mnCutRows.click.handle([this] { cut(); });
  editor_.mnPasteRows.click.handle([this] { paste(); });
  editor_.mnDuplicateRows.click.handle([this] { duplicate(); });
  editor_.mnMoveRowsUp.click.handle([this] { moveUp(); });
  editor_.mnMoveRowsDown.click.handle([this] { moveDown(); });
  editor_.mnRepeatRows.click.handle([this] { repeat(); });
  grid_.keyPressed.handle([this](const std::string& key) { pressKey(key); });
  grid_.rowsDropped.handle([this](int row) { moveBefore(row); });
}

void RowCommands::pressKey(const std::string& key) {
  using Member = void (RowCommands::*)();
  static constexpr std::array<std::pair<const char*, Member>, 9> keys{
      {{"Ctrl+A", &RowCommands::selectAll},
       {"Ctrl+C", &RowCommands::copy},
       {"Ctrl+X", &RowCommands::cut},
       {"Ctrl+V", &RowCommands::paste},
       {"Ctrl+D", &RowCommands::duplicate},
       {"Ctrl+R", &RowCommands::repeat},
       {"Ctrl+Enter", &RowCommands::addRowLike},
       {"Alt+Up", &RowCommands::moveUp},
       {"Alt+Down", &RowCommands::moveDown}}};
  for (const auto& [name, member] : keys) {
    if (key == name) (this->*member)();
  }
}

bool RowCommands::begin() {
  if (!editor_.visible || grid_.rowCount() == 0) return false;
  editor_.Command1.click();
  return true;
}

void RowCommands::hint(const std::string& text) {
  editor_.Label24.visible = false;
  editor_.Label23.caption = text;
}

std::vector<int> RowCommands::takenRows() {
  std::vector<int> rows = grid_.selectedRows();
  std::erase(rows, 1);
  if (rows.empty()) {
    hint("Choisissez d'abord une ou plusieurs Lignes, la Première ne pouvant être ni Copiée ni Déplacée...");
  }
  return rows;
}

void RowCommands::selectAll() {
  if (grid_.rowCount() < 2) return;
  grid_.selectRows(span(2, grid_.rowCount()), std::max(2, grid_.selectedRow()));
}

bool RowCommands::copyTaken(const std::vector<int>& rows) {
  if (rows.empty()) return false;
  const std::string text = textOfRows(grid_, rows);
  if (text.empty()) {
    hint(nothingToCopy);
    return false;
  }
  context_.outside.clipboard.setText(text);
  return true;
}

void RowCommands::copy() {
  if (begin() && copyTaken(takenRows())) grid_.focus();
}

void RowCommands::cut() {
  if (!begin()) return;
  const std::vector<int> rows = takenRows();
  if (!copyTaken(rows)) return;
  lines_.preambule();
  lines_.removeRows(rows);
  editor_.Timer4.tick();
}

void RowCommands::paste() {
  if (!begin()) return;
  const std::string text = context_.outside.clipboard.text();
  model::requireRoom(grid_, linesIn(text));
  const ReadRows read = readRows(text);
  if (read.rows.empty() && read.refusedCount == 0) {
    hint("Il n'y a aucune Ligne à Coller...");
    return;
  }
  if (!read.rows.empty()) {
    const std::vector<int> selected = grid_.selectedRows();
    int last = selected.empty() ? grid_.rowCount() : selected.back();
    // A row in which nothing has been chosen yet has waited for these.
    if (selected.size() < 2 && model::isBlankRow(grid_, last)) grid_.removeRow(last--);
    insertBehind(last, read.rows);
  }
  if (read.refusedCount > 0) tellRefused(read);
}

void RowCommands::tellRefused(const ReadRows& read) {
  std::string told = "Ces Cellules n'ont pas de Place dans la Liste, le Reste est Collé :";
  for (const std::string& cell : read.refused) told += "\n" + cell;
  if (read.refusedCount > read.refused.size())
    told += "\n... et (" + std::to_string(read.refusedCount - read.refused.size()) + ") autre(s)";
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Cellules non Collées...", told});
}

RowCommands::Rows RowCommands::likenesses(const std::vector<int>& rows) {
  Rows all;
  for (const int row : rows) {
    if (grid_.text(row, column::sequence) == model::noMeaning) continue;
    platform::Grid::Cells cells = model::handMadeRow(0, std::string(model::endOfList));
    const platform::Grid::Cells& from = *grid_.cells(row);
    std::copy(from.begin() + column::sequence - 1, from.end(), cells.begin() + column::sequence - 1);
    all.push_back(std::move(cells));
  }
  if (all.empty()) hint(nothingToCopy);
  return all;
}

void RowCommands::duplicate() {
  if (!begin()) return;
  const std::vector<int> rows = takenRows();
  if (!rows.empty()) insertBehind(rows.back(), likenesses(rows));
}

void RowCommands::addRowLike() {
  if (!begin()) return;
  const int row = grid_.selectedRow();
  grid_.select(row);
  if (!takenRows().empty()) insertBehind(row, likenesses({row}));
}

void RowCommands::repeat() {
  if (!begin() || takenRows().empty()) return;
  const std::optional<int> times = context_.outside.dialogs.askNumber(
      {"Répéter ces lignes", "Combien de Fois ces Lignes doivent-elles se Suivre en Tout ?", 1, mostRepeats,
       usualRepeats});
  if (!times || !begin()) return;
  const std::vector<int> rows = takenRows();  // as they are after the question
  if (rows.empty()) return;
  const Rows once = likenesses(rows);
  Rows all;
  for (int n = 1; n < *times; ++n) all.insert(all.end(), once.begin(), once.end());
  insertBehind(rows.back(), all);
}

// New rows are numbered as if each were made at the end and the rows behind its place were then moved behind
// it, which gives these their old places as their numbers.
void RowCommands::insertBehind(int row, const Rows& rows) {
  if (rows.empty()) return;
  model::requireRoom(grid_, static_cast<int>(rows.size()));
  lines_.prepareOwnRows();
  lines_.forgetNameForOwnRows();
  const int before = grid_.rowCount();
  for (int follower = row + 1; follower <= before; ++follower) {
    grid_.setText(follower, column::number, std::to_string(follower));
  }
  int place = row;
  for (platform::Grid::Cells cells : rows) {
    cells.front() = std::to_string(grid_.rowCount() + 1);
    put(++place, std::move(cells));
  }
  finish(span(row + 1, place), place);
}

void RowCommands::put(int row, platform::Grid::Cells cells) {
  grid_.insertRow(row, std::move(cells));
  styleRow(grid_, row);
  if (!model::isUnfinished(grid_, row)) return;
  grid_.setStyle(row, column::sessionName, column::deleteMark, model::row_style::unfinished);
}

void RowCommands::finish(const std::vector<int>& selected, int inHand) {
  grid_.selectRows(selected, inHand);
  grid_.reveal(inHand);
  grid_.focus();
  editor_.Timer4.tick();
}

// Takes a row out and puts it where another one stands. It keeps its number, as a row does for life.
void RowCommands::shift(int from, int to) {
  const platform::Grid::Cells cells = *grid_.cells(from);
  grid_.removeRow(from);
  put(to, cells);
}

// The row above each run of selected rows goes below it; a run at the top stays.
void RowCommands::moveUp() {
  if (!begin()) return;
  std::vector<int> rows = takenRows();
  if (rows.empty()) return;
  lines_.preambule();
  int inHand = grid_.selectedRow();
  int top = 2;
  for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
    next = first + 1;
    while (next < rows.size() && rows[next] == rows[next - 1] + 1) ++next;
    if (rows[first] > top) {
      if (inHand >= rows[first] && inHand <= rows[next - 1]) --inHand;
      shift(rows[first] - 1, rows[next - 1]);
      for (std::size_t i = first; i < next; ++i) --rows[i];
    }
    top = rows[next - 1] + 1;
  }
  finish(rows, inHand);
}

void RowCommands::moveDown() {
  if (!begin()) return;
  std::vector<int> rows = takenRows();
  if (rows.empty()) return;
  lines_.preambule();
  int inHand = grid_.selectedRow();
  int bottom = grid_.rowCount();
  for (std::size_t end = rows.size(), first = end; end > 0; end = first) {
    first = end - 1;
    while (first > 0 && rows[first - 1] == rows[first] - 1) --first;
    if (rows[end - 1] < bottom) {
      if (inHand >= rows[first] && inHand <= rows[end - 1]) ++inHand;
      shift(rows[end - 1] + 1, rows[first]);
      for (std::size_t i = first; i < end; ++i) ++rows[i];
    }
    bottom = rows[first] - 1;
  }
  finish(rows, inHand);
}

// Selected rows that stand apart come together there.
void RowCommands::moveBefore(int row) {
  if (!begin()) return;
  const std::vector<int> rows = takenRows();
  if (rows.empty()) return;
  lines_.preambule();
  const auto inHand = std::ranges::find(rows, grid_.selectedRow()) - rows.begin();
  const auto before = static_cast<int>(std::ranges::count_if(rows, [&](int each) { return each < row; }));
  const int count = static_cast<int>(rows.size());
  Rows moved;
  for (const int each : rows) moved.push_back(*grid_.cells(each));
  for (auto each = rows.rbegin(); each != rows.rend(); ++each) grid_.removeRow(*each);
  const int first = std::clamp(row - before, 2, grid_.rowCount() + 1);
  int place = first;
  for (platform::Grid::Cells& cells : moved) put(place++, std::move(cells));
  finish(span(first, place - 1), first + std::min(static_cast<int>(inHand), count - 1));
}

}  // namespace editor
