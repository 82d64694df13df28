// The main screen's two music buttons, of which one stands at a time.
#pragma once

#include "forms/main_form.h"

namespace forms {

inline void showMusicPlaying(MainForm& main) {
  main.MyButton21.visible = true;
  main.MyButton19.visible = false;
}

// After whatever has stopped the music for good. Where it was not offered, it is not offered now.
inline void showMusicStopped(MainForm& main) {
  if (!main.MyButton21.visible) return;
  main.MyButton21.visible = false;
  main.MyButton19.visible = true;
}

}  // namespace forms
