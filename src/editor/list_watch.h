// The editor's watches: the total of the first row, the unfinished rows, the blinking warning, the cell under
// the pointer. The operations that change cells recompute nothing.
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
  void blink();

  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  // Whether the list has changed since it was last summed or painted: a look at an unchanged list costs
  // nothing.
  bool totalStale_ = true;
  bool stylesStale_ = true;
  int unfinished_ = 0;
};

}  // namespace editor
