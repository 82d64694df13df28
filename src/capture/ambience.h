// The ways between the main screen and this page, and the orders of the main screen to its music.
#pragma once

#include "capture/selection.h"
#include "voice/toolbox.h"

namespace capture {

class Ambience {
 public:
  Ambience(const voice::Toolbox& tools, Selection& selection);

 private:
  void connectMainScreen();
  void openRecording();
  void openLibrary();
  void startWholeLibrary();
  void leaveLibrary();

  voice::Toolbox tools_;
  forms::MainForm& main_;
  forms::EnrUneAnnonce& form_;
  Selection& selection_;
};

}  // namespace capture
