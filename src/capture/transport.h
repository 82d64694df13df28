// The library's own play, pause, stop, previous and next, and the music's volume: orders to the player.
#pragma once

#include "context/context.h"

namespace capture {

class Transport {
 public:
  explicit Transport(const context::Context& context);

 private:
  void lire();
  void showLength();
  void volumeMoved();

  forms::EnrUneAnnonce& form_;
  forms::LectMCI& player_;
  forms::VolumeGeneral& volume_;
};

}  // namespace capture
