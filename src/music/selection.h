// What the list of music, its player and its deletions share.
#pragma once

#include <string>

namespace music {

struct Selection {
  int nbMusiquesCochees = 0;  // ticked, as the start button shows; wrong after the removal of an unticked row
  int nbMusiquesJouees = 0;   // started since the selection began
  int prochaineMusique = 1;   // row where the search for the next ticked one begins
  std::string listeChargee;   // "ok": the list keeps its ticks; empty: it is made anew at the next visit
};

}  // namespace music
