// Editing a cell: a click opens the shared editor over it or is refused, and a pick writes to the grid.
#pragma once

#include <string>

#include "context/context.h"
#include "heartrate/calculator.h"

namespace editor {

class CellEditor {
 public:
  CellEditor(const context::Context& context, heartrate::Calculator& calculator);

 private:
  void cliquerCellule();
  void presserCellule(platform::MouseButton button);
  void placerEditeur();
  void validerChoix();
  void validerSaisie();
  // On a pick in a duration box, or Enter. Only entries of its list are written.
  void validerDuree();
  void ecouterAnnonce();
  void endEditing();
  void finishDuration();
  [[nodiscard]] bool durationOpen() const;
  [[nodiscard]] std::string presentDuration() const;
  void fillDurationBoxes();
  [[nodiscard]] std::string chosenDuration();
  void movePointer();
  void fillReadOuts();
  void chargerListeCellule();
  void showDuration();
  void selectPresentText();
  void explainFirstRow();
  void placeOverCell();
  void refuse();
  void showBadge(const std::string& text, const platform::Colour& colour);
  void hideDurationPanelOutsideList();
  void hideBadge();
  void explainKind(const std::string& picked);
  void repeatFirstRow(const std::string& picked);

  context::Context context_;
  heartrate::Calculator& calculator_;
  forms::CreerCycle& editor_;
  platform::Grid& grid_;
  int colonneCliquee_ = 0;  // under the pointer at its last move
  int colonneEdit_ = 0;     // of the open editor
  int ligneEdit_ = 0;       // its row, the selected one at the click
};

}  // namespace editor
