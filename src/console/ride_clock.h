// The machine's clock, run faster; it listens to the terminal while it sleeps.
#pragma once

#include "console/terminal.h"
#include "platform/clock.h"

namespace console {

class RideClock final : public platform::Clock {
 public:
  RideClock(double speed, Terminal& terminal)
      : speed_(speed), terminal_(terminal), wallAtStart_(real_.localTime()) {}

  [[nodiscard]] platform::Instant now() const override {
    return platform::Instant(static_cast<long>(static_cast<double>(real_.now().count()) * speed_));
  }
  [[nodiscard]] platform::LocalTime localTime() const override { return wallAtStart_ + now(); }
  [[nodiscard]] platform::Instant suspended() const override { return real_.suspended(); }
  void sleepUntil(platform::Instant when) override {
    const platform::Instant left = when - now();
    if (left.count() <= 0) return;
    terminal_.wait(platform::Instant(static_cast<long>(static_cast<double>(left.count()) / speed_) + 1));
  }

 private:
  platform::RealClock real_;
  double speed_;
  Terminal& terminal_;
  platform::LocalTime wallAtStart_;
};

}  // namespace console
