// The calculator's panel: the method and its boxes, the results, opening, watching and closing.
#pragma once

#include "context/context.h"
#include "heartrate/figures.h"

namespace heartrate {

class CalculatorScreen {
 public:
  CalculatorScreen(const context::Context& context, Figures& figures);

  // Empties the result labels if they still hold their names ("Label50") as text.
  void clearDesignTexts();

 private:
  void ouvrirCalculateur();
  void attachInputs();
  void calculerFrequences();
  void choisirMethode();
  void showBoxesOf(int methode);
  void surveiller();
  void offerSaving();
  void fermer();

  context::Context context_;
  forms::CreerCycle& editor_;
  Figures& figures_;
};

}  // namespace heartrate
