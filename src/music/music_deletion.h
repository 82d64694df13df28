// Taking music out of the list, or off the disk.
#pragma once

#include <string>

#include "music/selection_list.h"

namespace music {

class MusicDeletion {
 public:
  MusicDeletion(const context::Context& context, SelectionList& list, Selection& selection);

 private:
  void removeFromList();
  void deletePiece();
  void deleteAll();

  context::Context context_;
  forms::EnrUneAnnonce& library_;
  SelectionList& list_;
  Selection& selection_;
  std::string nomMusique_;  // the row just taken out of the list
};

}  // namespace music
