// The desktop's screen saver: whether it may come on, and holding it off during a ride.
#pragma once

namespace platform {

class ScreenSaver {
 public:
  virtual ~ScreenSaver() = default;
  // True while the saver may come on. False without a saver, or while it is held off.
  virtual bool active() = 0;
  virtual void setActive(bool active) = 0;
};

}  // namespace platform
