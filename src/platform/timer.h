// A repeating timer of a form; the event loop fires it while it is on and its form is loaded.
#pragma once

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "platform/observable.h"

namespace platform {

class Timer final : public Component {
 public:
  Timer(Form& form, std::string name, int intervalMs, bool on = false)
      : Component(&form, ControlKind::Timer, std::move(name)),
        interval(*this, Prop::Interval, intervalMs),
        enabled(*this, Prop::Enabled, on) {}
  ~Timer() override;

  Property<int> interval;  // ms, above 0
  Property<bool> enabled;
  Event<> tick;

  // The last word of a tick that has changed nothing and would change nothing at the next ones either, until
  // one of these changes. Those ticks are skipped; the one that would notice the change comes at its own
  // time.
  void rest(std::initializer_list<Observable*> until);
  // For what no observable tells of. Nothing on a timer that does not rest.
  void wake();

 private:
  friend class EventLoop;
  friend class Observable;
  void propertyChanged(Prop id) override {
    notifyWatchers(id);
    if (scheduler_ != nullptr) scheduler_->restart(*this);
  }
  void forgetWhatItRestsOn();

  TimerScheduler* scheduler_ = nullptr;
  std::vector<Observable*> restsOn_;
};

// Makes the timer a one-shot: when it fires, it first turns itself off and then runs the action.
inline void once(Timer& timer, std::function<void()> action) {
  timer.tick.handle([&timer, action = std::move(action)] {
    timer.enabled = false;
    action();
  });
}

}  // namespace platform
