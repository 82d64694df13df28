// The targets in the grid's last column: picked for one sequence, or rewritten for all when the method
// changes.
#pragma once

#include <string>

#include "heartrate/figures.h"
#include "heartrate/formulas.h"
#include "voice/toolbox.h"

namespace heartrate {

class TargetColumn {
 public:
  TargetColumn(const voice::Toolbox& tools, Figures& figures);

  void viserCellule(int row, const std::string& pickedText);
  void recalculerColonneFC();

 private:
  [[nodiscard]] TargetOperands operands() const;
  void choisirMethode();

  voice::Toolbox tools_;
  forms::CreerCycle& form_;
  Figures& figures_;
};

}  // namespace heartrate
