// The editor's watches: the total of the first row, the unfinished rows, the blinking warning, the cell under
// the pointer. The operations that change cells recompute nothing.
#pragma once

#include "voice/toolbox.h"

namespace editor {

class Totals {
 public:
  explicit Totals(const voice::Toolbox& tools);

  void calculerTotal();
  void verifierLignes();
  void survolerCellule();

 private:
  void blink();

  forms::CreerCycle& form_;
  platform::Grid& grid_;
};

}  // namespace editor
