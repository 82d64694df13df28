// What a rider does with several rows at once: copy, cut, paste, duplicate, move, repeat; and the row that
// starts from the values of the one above it. The first row is never taken. Each is one step of the history.
#pragma once

#include <string>
#include <vector>

#include "context/context.h"
#include "editor/lines.h"
#include "editor/row_text.h"

namespace editor {

class RowCommands {
 public:
  RowCommands(const context::Context& context, Lines& lines);

 private:
  using Rows = std::vector<platform::Grid::Cells>;

  void copy();
  void cut();
  void paste();
  void duplicate();
  void repeat();
  void addRowLike();
  void moveUp();
  void moveDown();
  void moveBefore(int row);
  void selectAll();
  void pressKey(const std::string& key);

  // Ends what is being edited. False where the list cannot be worked, since its page is not shown or it has
  // no rows yet.
  [[nodiscard]] bool begin();
  // The selected rows but the first; says so where there is none.
  [[nodiscard]] std::vector<int> takenRows();
  [[nodiscard]] bool copyTaken(const std::vector<int>& rows);
  // The values of those rows in rows of the rider's own; repeat rows and closing rows have none.
  [[nodiscard]] Rows likenesses(const std::vector<int>& rows);
  void tellRefused(const ReadRows& read);
  void insertBehind(int row, const Rows& rows);
  void put(int row, platform::Grid::Cells cells);
  void shift(int from, int to);
  void finish(const std::vector<int>& selected, int inHand);
  void hint(const std::string& text);

  context::Context context_;
  Lines& lines_;
  forms::CreerCycle& editor_;
  platform::Grid& grid_;
};

}  // namespace editor
