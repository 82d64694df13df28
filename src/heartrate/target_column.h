// The targets in the grid's last column: picked for one sequence, or rewritten for all when the method
// changes.
#pragma once

#include <string>

#include "context/context.h"
#include "heartrate/figures.h"
#include "heartrate/formulas.h"

namespace heartrate {

class TargetColumn {
 public:
  TargetColumn(const context::Context& context, Figures& figures);

  void viserCellule(int row, const std::string& pickedText);

 private:
  void recalculerColonneFC();
  [[nodiscard]] TargetOperands operands() const;
  void choisirMethode();

  context::Context context_;
  forms::CreerCycle& editor_;
  Figures& figures_;
};

}  // namespace heartrate
