// The library's own play, pause, stop, previous and next, and the music's volume: orders to the player.
#pragma once

#include "context/context.h"

namespace music {

class Transport {
 public:
  explicit Transport(const context::Context& context);

 private:
  void lire();
  void showLength();
  void volumeMoved();

  forms::EnrUneAnnonce& library_;
  forms::LectMCI& player_;
  forms::VolumeGeneral& volume_;
  platform::Variable<model::Playback>& music_;
};

}  // namespace music
