// The whole page of announcements and music: its parts, and what happens when it is loaded.
#pragma once

#include <string>

#include "capture/ambience.h"
#include "capture/info_panel.h"
#include "capture/listening_level.h"
#include "capture/music_deletion.h"
#include "capture/music_import.h"
#include "capture/recorder.h"
#include "capture/selection_list.h"
#include "capture/selection_player.h"
#include "capture/stored_announcements.h"
#include "capture/take_figures.h"
#include "capture/take_saving.h"
#include "capture/transport.h"

namespace capture {

class Page {
 public:
  Page(const context::Context& context, voice::Voice& voice, std::string documentsFolder);

 private:
  void load();

  context::Context context_;
  forms::EnrUneAnnonce& form_;
  Selection selection_;
  SelectionList list_;
  MusicImport import_;
  MusicDeletion deletion_;
  SelectionPlayer player_;
  Transport transport_;
  Ambience ambience_;
  Recorder recorder_;
  TakeFigures figures_;
  TakeSaving saving_;
  StoredAnnouncements stored_;
  ListeningLevel level_;
  InfoPanel info_;
};

}  // namespace capture
