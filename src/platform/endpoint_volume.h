// The master volume of the machine's default playback device.
#pragma once

#include <string>

namespace platform {

class EndpointVolume {
 public:
  virtual ~EndpointVolume() = default;
  // Turns to what is the default playback device now, and stays with it until it is asked again. False:
  // there is none. All that follows is about this device; where it has gone meanwhile, reads give false, 0
  // and an empty text, and writes do nothing.
  virtual bool open() = 0;
  virtual bool muted() = 0;
  virtual void setMuted(bool muted) = 0;
  // 0 to 1, as the desktop's own control shows it; a device may be louder than 1.
  virtual double level() = 0;
  virtual void setLevel(double level) = 0;
  virtual int channels() = 0;
  virtual std::string deviceName() = 0;
};

}  // namespace platform
