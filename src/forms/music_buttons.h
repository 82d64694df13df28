// The main screen's two music buttons: at most one of them is visible.
#pragma once

#include "forms/main_form.h"

namespace forms {

inline void showMusicPlaying(MainForm& main) {
  main.MyButton21.visible = true;
  main.MyButton19.visible = false;
}

// Once the music has stopped for good. Does nothing where the screen does not show music as playing.
inline void showMusicStopped(MainForm& main) {
  if (!main.MyButton21.visible) return;
  main.MyButton21.visible = false;
  main.MyButton19.visible = true;
}

}  // namespace forms
