// Undo and redo of the list. Every change of the grid's texts is recorded as it happens, together with the
// captions about the list; what one action of the rider changes is one step. Cell texts come back exactly;
// the total is summed anew.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "context/context.h"

namespace editor {

class History {
 public:
  explicit History(const context::Context& context);

  void undo();
  void redo();
  // Empties the history: nothing before the present list can be undone.
  void clear();

 private:
  using Cells = platform::Grid::Cells;
  using Row = std::shared_ptr<const Cells>;  // the grid's own, so that a long list is not copied
  enum class Kind { Text, Insert, Remove };
  struct Change {
    Kind kind;
    int row;
    int column;  // of a Text
    Row cells;   // the row's cells; of a Text the old one and the new one
  };
  using Changes = std::vector<Change>;
  // The captions of `captions_`, then the session's title.
  using Words = std::array<std::string, 6>;
  struct Step {
    Changes changes;
    Words before;
    Words after;
  };

  void recordChange(const platform::GridChange& change);
  void recordText(int row, int column);
  void beginStep();
  void endStep();
  void closeStep();
  [[nodiscard]] bool hasEffect() const;
  [[nodiscard]] bool textsDiffer() const;
  [[nodiscard]] bool rowsDiffer() const;
  void apply(const Change& change, bool backwards);
  void restoreWords(const Words& from, const Words& to);
  void replay(std::deque<Step>& from, std::deque<Step>& to, bool backwards);
  void enableMenuEntries();
  [[nodiscard]] Words words() const;

  platform::EventLoop& loop_;
  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  model::SharedState& state_;
  std::array<platform::Property<std::string>*, 5> captions_;
  std::vector<Row> shadow_;  // the grid's texts as they were before the change being recorded
  Words wordsBefore_;        // as they were before the open step
  Words wordsNow_;           // as they are
  Changes open_;
  std::uint64_t action_ = 0;  // the action that makes the open step
  std::deque<Step> undo_;
  std::deque<Step> redo_;
  bool replaying_ = false;
};

}  // namespace editor
