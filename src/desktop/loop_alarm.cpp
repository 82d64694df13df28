#include "desktop/loop_alarm.h"

#include <algorithm>

namespace desktop {

LoopAlarm::LoopAlarm(platform::EventLoop& loop) : loop_(loop) {
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
  connect(&alarm_, &QTimer::timeout, this, &LoopAlarm::serve);
  loop_.onReschedule([this] { arm(); });
}

void LoopAlarm::start() {
  started_ = true;
  arm();
}

void LoopAlarm::serve() {
  // The rider's actions during a sound come first, so that a pause takes effect before the next second.
  loop_.runHeld();
  loop_.fireDue();
  arm();
}

void LoopAlarm::arm() {
  const std::optional<platform::Instant> due = loop_.nextDue();
  // A blocked loop calls onReschedule when it is free again.
  if (!started_ || loop_.quitting() || loop_.blocked() || !due) {
    alarm_.stop();
    return;
  }
  alarm_.start(std::max(*due - loop_.clock().now(), platform::Instant{0}));
}

}  // namespace desktop
