// What other programs and the rider's hands may change on the machine while the program runs.
#pragma once

#include <optional>

namespace console {

struct SimulatedMachine {
  std::optional<int> volume = 80;  // the master volume, %; none: no volume device
  bool muted = false;
  bool microphone = true;
};

}  // namespace console
