// What may change on the machine while the program runs, by other programs or by the rider.
#pragma once

#include <optional>

namespace console {

struct SimulatedMachine {
  std::optional<int> volume = 80;  // the master volume, %; none: no volume device
  bool muted = false;
  bool microphone = true;
};

}  // namespace console
