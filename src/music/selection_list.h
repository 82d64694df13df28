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
  // Shows the number of rows; "select all" is enabled if there are any.
  void showCount();
  // Labels the start button for that many ticked pieces, and enables it if there are any.
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
