// The list of music with its ticks, from which the rider chooses what plays behind a ride.
#pragma once

#include <string>

#include "context/context.h"
#include "music/selection.h"

namespace music {

class SelectionList {
 public:
  SelectionList(const context::Context& context, Selection& selection);

  // Reads the library's folder again.
  void readLibrary();
  // The count of the list in its own words, and "select all" only where there is something to select.
  void showCount();
  // The start button for that many ticked pieces.
  void offerStart(int ticked);
  [[nodiscard]] std::string pathOf(const std::string& name) const;

 private:
  void ouvrir();
  void fill();
  void fermer();
  void rowTicked();
  void tickAll();
  void tickRepeat();
  void openMenu(platform::MouseButton button);
  // Counts the ticks into the selection: 0 none, 1 all, 2 some.
  int recount();

  context::Context context_;
  forms::EnrUneAnnonce& library_;
  platform::Grid& list_;
  Selection& selection_;
};

}  // namespace music
