// The page of own announcements: its parts, how it is opened, and its state when it is loaded.
#pragma once

#include "announcements/info_panel.h"
#include "announcements/listening_level.h"
#include "announcements/recorder.h"
#include "announcements/stored_announcements.h"
#include "announcements/take_figures.h"
#include "announcements/take_saving.h"

namespace announcements {

class Page {
 public:
  Page(const context::Context& context, voice::Voice& voice);

  // Resets the page and opens the recorder.
  void makeReady();

 private:
  void open();

  context::Context context_;
  forms::EnrUneAnnonce& page_;
  Recorder recorder_;
  TakeFigures figures_;
  TakeSaving saving_;
  StoredAnnouncements stored_;
  ListeningLevel level_;
  InfoPanel info_;
};

}  // namespace announcements
