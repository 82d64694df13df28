// The ways between the main screen and this page, and the orders of the main screen to its music.
#pragma once

#include "capture/selection.h"
#include "context/context.h"
#include "voice/voice.h"

namespace capture {

class Ambience {
 public:
  Ambience(const context::Context& context, voice::Voice& voice, Selection& selection);

 private:
  void connectMainScreen();
  void openRecording();
  void openLibrary();
  void startWholeLibrary();
  void leaveLibrary();

  context::Context context_;
  voice::Voice& voice_;
  forms::MainForm& main_;
  forms::EnrUneAnnonce& form_;
  Selection& selection_;
};

}  // namespace capture
