// The machine's clock. It sleeps in Qt's event loop: input, repaints and devices go on meanwhile.
#pragma once

#include "platform/clock.h"

namespace desktop {

class QtClock final : public platform::RealClock {
 public:
  void sleepUntil(platform::Instant when) override;
};

}  // namespace desktop
