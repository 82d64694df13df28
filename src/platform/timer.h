// A repeating timer of a form; the event loop fires it while it is on and its form is loaded.
#pragma once

#include <functional>
#include <utility>

#include "platform/form.h"

namespace platform {

class Timer final : public Component {
 public:
  Timer(Form& form, std::string name, int intervalMs, bool on = false)
      : Component(&form, ControlKind::Timer, std::move(name)),
        interval(*this, Prop::Interval, intervalMs),
        enabled(*this, Prop::Enabled, on) {}
  ~Timer() override {
    if (scheduler_ != nullptr) scheduler_->release(*this);
  }

  Property<int> interval;  // ms, above 0
  Property<bool> enabled;
  Event<> tick;

 private:
  friend class EventLoop;
  void propertyChanged(Prop id) override {
    notifyWatchers(id);
    if (scheduler_ != nullptr) scheduler_->restart(*this);
  }

  TimerScheduler* scheduler_ = nullptr;
};

// Makes the timer a one-shot: when it fires, it first turns itself off and then runs the action.
inline void once(Timer& timer, std::function<void()> action) {
  timer.tick.handle([&timer, action = std::move(action)] {
    timer.enabled = false;
    action();
  });
}

}  // namespace platform
