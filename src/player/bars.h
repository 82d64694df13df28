// The progress bar and the volume bar: painted in strips, worked by the mouse.
#pragma once

#include "forms/lect_mci.h"
#include "platform/event_loop.h"
#include "player/medium.h"

namespace player {

class Bars {
 public:
  Bars(forms::LectMCI& form, platform::EventLoop& loop, Medium& medium);

  // Gives the progress bar the medium's length as its scale, and empties it.
  void viderProgression();
  void peindreProgression(double position);

 private:
  using Pointer = platform::PaintBar::Pointer;

  void attachProgress();
  void attachVolume();
  void pressProgress(const Pointer& at);
  void dragProgress(const Pointer& at);
  void releaseProgress(const Pointer& at);
  void peindreVolume(double value);
  void volumeByMouse(double y);
  void volumeByScroll();

  forms::LectMCI& player_;
  platform::EventLoop& loop_;
  Medium& medium_;
};

}  // namespace player
