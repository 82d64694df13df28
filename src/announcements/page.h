// The page of own announcements: its parts, the way to it, and what it is when it is loaded.
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

  // The page as it first was, with the recorder open.
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
