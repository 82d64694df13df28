// The clock is handed in: simulated in rehearsals, the console and tests, real on the desktop.
#pragma once

#include <chrono>

namespace platform {

using Instant = std::chrono::milliseconds;  // since the program's start, never going back
using LocalTime = std::chrono::local_time<std::chrono::milliseconds>;  // date and time on the wall, no zone

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual Instant now() const = 0;
  [[nodiscard]] virtual LocalTime localTime() const = 0;
  // How long the machine has been suspended in all. That time is on the wall, but not in now().
  [[nodiscard]] virtual Instant suspended() const = 0;
  // Lets time pass until `when`, or less if input or a device needs attention. Returns at once if `when` has
  // passed already. Fires no timer.
  virtual void sleepUntil(Instant when) = 0;
};

// The machine's clock. Sleeps the thread; a front with an event loop of its own overrides sleepUntil.
class RealClock : public Clock {
 public:
  RealClock();
  [[nodiscard]] Instant now() const override;
  [[nodiscard]] LocalTime localTime() const override;
  [[nodiscard]] Instant suspended() const override;
  void sleepUntil(Instant when) override;

 private:
  std::chrono::steady_clock::time_point start_;
};

}  // namespace platform
