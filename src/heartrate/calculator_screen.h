// The calculator's panel: the method and its boxes, the results, opening, watching and closing.
#pragma once

#include "context/context.h"
#include "heartrate/figures.h"

namespace heartrate {

class CalculatorScreen {
 public:
  CalculatorScreen(const context::Context& context, Figures& figures);

  // The labels of the results lose the texts that they were drawn with.
  void clearDesignTexts();

 private:
  void ouvrirCalculateur();
  void attachInputs();
  void calculerFrequences();
  void choisirMethode();
  void showBoxesOf(int methode);
  void surveiller();
  void fermer();

  context::Context context_;
  forms::CreerCycle& editor_;
  Figures& figures_;
};

}  // namespace heartrate
