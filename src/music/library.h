// The music library: its parts, and its state when its page is loaded.
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

  // Resets the library and its player, and reads the music folder again.
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
