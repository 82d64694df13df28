// The master volume of the machine's default playback device.
#pragma once

#include <string>

#include "platform/observable.h"

namespace platform {

class EndpointVolume {
 public:
  virtual ~EndpointVolume() = default;
  // Finds the present default playback device, which the other functions then use until the next call, or
  // until it goes and sound is moved to another. False: there is none. While there is none, reads give false,
  // 0 or an empty text, and writes do nothing.
  virtual bool open() = 0;
  virtual bool muted() = 0;
  virtual void setMuted(bool muted) = 0;
  // 0 to 1, as the desktop's own control shows it; a device may be louder than 1.
  virtual double level() = 0;
  virtual void setLevel(double level) = 0;
  virtual int channels() = 0;
  virtual std::string deviceName() = 0;
  // What tells, on the loop's thread, that the reads may have changed; null while nothing does.
  [[nodiscard]] virtual Observable* changes() { return nullptr; }
};

}  // namespace platform
