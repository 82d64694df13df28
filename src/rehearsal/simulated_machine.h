// What may change on the machine while the program runs, by other programs or by the rider.
#pragma once

#include <optional>

#include "platform/observable.h"

namespace rehearsal {

struct SimulatedMachine {
  explicit SimulatedMachine(std::optional<int> percent = 80) : volume(percent) {}

  std::optional<int> volume;  // the master volume, %; none: no volume device
  bool muted = false;
  platform::Observable volumeChanges;  // of these two
  bool microphone = true;
};

}  // namespace rehearsal
