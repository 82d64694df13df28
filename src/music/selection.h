// What the list of music, its player and its deletions share.
#pragma once

#include <string>

#include "platform/observable.h"

namespace music {

struct Selection {
  // Ticked, as the start button shows; wrong after the removal of an unticked row.
  platform::Variable<int> nbMusiquesCochees;
  platform::Variable<int> nbMusiquesJouees;  // started since the selection began
  int prochaineMusique = 1;                  // row where the search for the next ticked one begins
  std::string listeChargee;  // "ok": the list keeps its ticks; empty: it is made anew at the next visit
};

}  // namespace music
