// What the main screen asks of the library: to open, to play all its music, to stop it; and the way back.
#pragma once

#include "context/context.h"
#include "music/selection.h"
#include "voice/voice.h"

namespace music {

class MenuOrders {
 public:
  MenuOrders(const context::Context& context, voice::Voice& voice, Selection& selection);

 private:
  void connectMainScreen();
  void openLibrary();
  void startWholeLibrary();
  void leaveLibrary();

  context::Context context_;
  voice::Voice& voice_;
  forms::MainForm& main_;
  forms::EnrUneAnnonce& library_;
  Selection& selection_;
};

}  // namespace music
