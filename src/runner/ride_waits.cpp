#include "runner/ride_waits.h"

namespace runner {

void RideWaits::run(const std::function<void()>& work) {
  // Timers fire inside a wait, so that one work can begin inside another.
  struct Nesting {
    std::uint64_t& atWork;
    std::uint64_t outer;
    ~Nesting() { atWork = outer; }
  } const nesting{turnAtWork_, turnAtWork_};
  turnAtWork_ = turn_;
  try {
    work();
  } catch (const Overtaken&) {
    // Whatever overtook it has put the screen in order.
  }
}

void RideWaits::leaveIfOvertaken() const {
  if (turn_ != turnAtWork_ || loop_.quitting()) throw Overtaken{};
}

void RideWaits::pause() {
  voice_.attendre(1);
  leaveIfOvertaken();
}

void RideWaits::hold() {
  held_ = true;
  voice_.retenirMusique();
  leaveIfOvertaken();
}

void RideWaits::release() {
  held_ = false;
  voice_.relacherMusique();
}

void RideWaits::sayWithMusicHeld(const std::string& name) {
  voice_.nommer(name);
  hold();
  voice_.dire(name);
  release();
}

void RideWaits::endHold() {
  if (held_) release();
}

void RideWaits::silenceMusic() {
  held_ = false;
  voice_.retenirMusique();
  leaveIfOvertaken();
}

}  // namespace runner
