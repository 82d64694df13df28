// Own announcements and the music library: what the ride touches of them.
#pragma once

#include "platform/controls.h"
#include "platform/timer.h"

namespace forms {

struct EnrUneAnnonce : platform::Form {
  EnrUneAnnonce() : Form("EnrUneAnnonce") {}

  platform::FileList File1{*this, "File1", "*.mp3", {.visible = false}};  // the music library
  platform::Timer Timer12{*this, "Timer12", 10};                          // once: starts the selection
};

}  // namespace forms
