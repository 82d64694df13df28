#include "platform/clock.h"

#include <ctime>
#include <thread>

namespace platform {

RealClock::RealClock() : start_(std::chrono::steady_clock::now()) {}

Instant RealClock::now() const {
  return std::chrono::duration_cast<Instant>(std::chrono::steady_clock::now() - start_);
}

LocalTime RealClock::localTime() const {
  const auto wall = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(wall);
  const auto fraction = std::chrono::duration_cast<std::chrono::milliseconds>(wall.time_since_epoch()) %
                        std::chrono::seconds(1);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  const std::chrono::local_days day{std::chrono::year{parts.tm_year + 1900} /
                                    std::chrono::month{static_cast<unsigned>(parts.tm_mon) + 1} /
                                    std::chrono::day{static_cast<unsigned>(parts.tm_mday)}};
  return LocalTime{day.time_since_epoch()} + std::chrono::hours{parts.tm_hour} +
         std::chrono::minutes{parts.tm_min} + std::chrono::seconds{parts.tm_sec} + fraction;
}

Instant RealClock::suspended() const {
  // The clock that goes on in a suspend, less the one that stands still. It is read first: whatever comes
  // between the two readings makes the suspend shorter, and never one where there was none.
  std::timespec goesOn{};
  std::timespec standsStill{};
  clock_gettime(CLOCK_BOOTTIME, &goesOn);
  clock_gettime(CLOCK_MONOTONIC, &standsStill);
  return std::chrono::duration_cast<Instant>(std::chrono::seconds{goesOn.tv_sec - standsStill.tv_sec} +
                                             std::chrono::nanoseconds{goesOn.tv_nsec - standsStill.tv_nsec});
}

void RealClock::sleepUntil(Instant when) {
  std::this_thread::sleep_until(start_ + when);
}

}  // namespace platform
