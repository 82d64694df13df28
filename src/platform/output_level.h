// How loud this program alone sounds, left and right, whatever the machine's volume.
#pragma once

#include <cstdint>

namespace platform {

class OutputLevel {
 public:
  virtual ~OutputLevel() = default;
  // 0 is silence, 0xFFFF full volume. False: the device is busy, and has to be told again; one that
  // comes later begins with the level.
  virtual bool set(std::uint16_t left, std::uint16_t right) = 0;
};

}  // namespace platform
