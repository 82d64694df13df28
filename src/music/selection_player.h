// Playing the ticked music, one piece after the other, or one piece on its own.
#pragma once

#include <string>

#include "music/selection_list.h"

namespace music {

class SelectionPlayer {
 public:
  SelectionPlayer(const context::Context& context, SelectionList& list, Selection& selection);

 private:
  void demarrer();
  void musiqueSuivante();
  void watch();
  void ecouter();
  void play(const std::string& name);
  [[nodiscard]] int tickedFrom(int row) const;

  context::Context context_;
  forms::EnrUneAnnonce& library_;
  SelectionList& list_;
  Selection& selection_;
};

}  // namespace music
