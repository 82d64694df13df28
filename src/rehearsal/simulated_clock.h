// Time passes only when somebody sleeps or moves it.
#pragma once

#include "platform/clock.h"

namespace rehearsal {

class SimulatedClock final : public platform::Clock {
 public:
  explicit SimulatedClock(platform::LocalTime start) : wallAtStart_(start) {}
  [[nodiscard]] platform::Instant now() const override { return now_; }
  [[nodiscard]] platform::LocalTime localTime() const override { return wallAtStart_ + now_; }
  [[nodiscard]] platform::Instant suspended() const override { return suspended_; }
  void sleepUntil(platform::Instant when) override {
    if (when > now_) now_ = when;
  }
  // Somebody puts the clock on the wall forward, or back.
  void changeWall(platform::Instant by) { wallAtStart_ += by; }
  void suspend(platform::Instant length) {
    suspended_ += length;
    changeWall(length);
  }

 private:
  platform::LocalTime wallAtStart_;
  platform::Instant now_{0};
  platform::Instant suspended_{0};
};

}  // namespace rehearsal
