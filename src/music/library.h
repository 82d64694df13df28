// The music library: its parts, and what it is when its page is loaded.
#pragma once

#include <string>

#include "music/menu_orders.h"
#include "music/music_deletion.h"
#include "music/music_import.h"
#include "music/selection_list.h"
#include "music/selection_player.h"
#include "music/transport.h"

namespace music {

class Library {
 public:
  Library(const context::Context& context, voice::Voice& voice, std::string documentsFolder);

  // The library as it first was, read from its folder again, and its player.
  void makeReady();

 private:
  context::Context context_;
  forms::EnrUneAnnonce& library_;
  Selection selection_;
  SelectionList list_;
  MusicImport import_;
  MusicDeletion deletion_;
  SelectionPlayer selectionPlayer_;
  Transport transport_;
  MenuOrders menuOrders_;
};

}  // namespace music
