// The heart-rate calculator inside the session editor, and the targets of its grid. The editor owns the
// form's load and has the calculator load with it.
#pragma once

#include <functional>

#include "context/context.h"
#include "heartrate/calculator_screen.h"
#include "heartrate/figures.h"
#include "heartrate/personal_parameters.h"
#include "heartrate/target_column.h"

namespace heartrate {

class Calculator {
 public:
  explicit Calculator(const context::Context& context);
  Calculator(const Calculator&) = delete;
  Calculator& operator=(const Calculator&) = delete;

  // The boxes' lists and the saved figures. While `fillGrid` runs nothing is calculated yet.
  void load(const std::function<void()>& fillGrid);

  // Completes the target cell of a row for which a percentage was picked: "132-75 %".
  void viserCellule(int row, const std::string& pickedText) { column_.viserCellule(row, pickedText); }

  [[nodiscard]] const Figures& figures() const { return figures_; }

 private:
  void chargerListes();
  void finirChargement();

  forms::CreerCycle& editor_;
  Figures figures_;
  PersonalParameters personal_;
  TargetColumn column_;
  CalculatorScreen screen_;
};

}  // namespace heartrate
