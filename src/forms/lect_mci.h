// The hidden player, engine of the background music: what the ride touches of it.
#pragma once

#include "platform/controls.h"
#include "platform/timer.h"

namespace forms {

struct LectMCI : platform::Form {
  LectMCI() : Form("LectMCI") {}

  platform::TextBox Text1{*this, "Text1"};     // path of the piece; empty: none was ever asked for
  platform::Timer Timer3{*this, "Timer3", 1};  // once: stops the music
};

}  // namespace forms
