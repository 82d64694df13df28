// Undo and redo of the list: every change of the grid's texts is written down as it happens, in steps of one
// action of the rider each, and can be played backwards and forwards. Cell texts come back exactly.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "forms/creer_cycle.h"

namespace editor {

class History {
 public:
  explicit History(forms::CreerCycle& form);

  void undo();
  void redo();
  // The list as it stands is where undoing ends.
  void forget();

 private:
  using Cells = std::vector<std::string>;
  enum class Kind { Text, Insert, Remove };
  struct Change {
    Kind kind;
    int row;
    int column;   // of a Text
    Cells cells;  // the row's cells; of a Text the old one and the new one
  };
  using Step = std::vector<Change>;

  void note(const platform::GridChange& change);
  void noteText(int row, int column);
  void closeStep();
  void apply(const Change& change, bool backwards);
  void play(std::deque<Step>& from, std::deque<Step>& to, bool backwards);
  void showWhatIsPossible();
  [[nodiscard]] Cells cellsOf(int row) const;

  forms::CreerCycle& form_;
  platform::Grid& grid_;
  std::vector<Cells> shadow_;  // the grid's texts as they were before the change being noted
  Step open_;
  std::deque<Step> undo_;
  std::deque<Step> redo_;
  bool playing_ = false;
};

}  // namespace editor
