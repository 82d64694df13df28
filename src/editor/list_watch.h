// Watches the editor's list on timers: sums the durations, paints unfinished rows red, blinks the warning,
// follows the pointer. The commands that change cells leave all of this to it.
#pragma once

#include "context/context.h"

namespace editor {

class ListWatch {
 public:
  explicit ListWatch(const context::Context& context);

 private:
  void calculerTotal();
  void verifierLignes();
  void survolerCellule();
  void markStale(const platform::GridChange& change);
  // Colours every row but the first; how many are not finished.
  [[nodiscard]] int paintRows();
  void showUnfinished();
  void blink();

  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  // Whether the list has changed since it was last summed or painted; an unchanged list is not gone through.
  bool totalStale_ = true;
  bool stylesStale_ = true;
  int unfinished_ = 0;
};

}  // namespace editor
