// The program's one loop: it owns the timers and the clock, and everything runs on its thread.
//
// Due timers fire in order of due time, then of creation. A late timer fires once, not once for each period
// missed, and keeps its phase. A timer does not fire while its own handler still runs, even if that handler
// waits and other timers fire. A blocking sound stops the loop: see Blocking.
//
// A timer that rests (Timer::rest) is not fired and wakes nobody, but its ticks go by as if it were fired: in
// their order among the others, and late where a sound blocks the loop. So when what it waits for changes, it
// fires at the very tick at which it would have seen the change.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/form.h"

namespace platform {

class EventLoop final : public TimerScheduler {
 public:
  enum class Ticks { RestWhereIdle, Every };  // Every: no timer rests; to compare the two

  explicit EventLoop(Clock& clock, Ticks ticks = Ticks::RestWhereIdle);
  ~EventLoop() override;

  [[nodiscard]] Clock& clock() const { return clock_; }

  // Fires what is due and lets the front handle the rider's input. Nothing while a sound blocks the loop.
  void serveEvents();
  // Fires what is due, for a front that handles the rider's input in a loop of its own.
  void fireDue();
  // Serves events until `when`, sleeping from one due time to the next. Ends early when quitting.
  void runUntil(Instant when);
  // When the next timer that does not rest falls due; now, if an action that was held back can run.
  [[nodiscard]] std::optional<Instant> nextDue() const;

  // Runs something on behalf of the rider or a timer: an exception ends it and goes to the fault handler.
  void guard(const std::function<void()>& action);
  // Runs, guarded, what the rider caused: at once, or, while a sound blocks the loop, when events are next
  // served after the sound, in the order of arrival. Not at the end of the sound itself, because the handler
  // that played it has not finished.
  void whenFree(std::function<void()> action);
  // Runs what was held back, for a front that handles the rider's input in a loop of its own.
  void runHeld();
  // The number of the action that runs now, of several (one inside a wait or dialog of another) the
  // innermost; 0: none runs.
  [[nodiscard]] std::uint64_t action() const { return actions_.empty() ? 0 : actions_.back(); }
  // Whether that action has not ended yet.
  [[nodiscard]] bool runs(std::uint64_t action) const;

  // `pump` lets the front handle the rider's input; `next` says when more will come, where that is known.
  void onInput(std::function<void()> pump, std::function<std::optional<Instant>()> next = {}) {
    pump_ = std::move(pump);
    nextInput_ = std::move(next);
  }
  void onFault(std::function<void(const std::string&)> handler) { faultHandler_ = std::move(handler); }
  // Called when the next due time may have changed, and when a sound no longer blocks the loop: for a front
  // that sleeps on a timer of its own.
  void onReschedule(std::function<void()> handler) { rescheduled_ = std::move(handler); }

  // Called as an action of its own when events are next served after the machine was suspended, before any
  // timer fires.
  void onSuspend(std::function<void()> handler) { suspended_ = std::move(handler); }

  // Ends the program: waits and sounds return at once, no timer fires and nothing held back runs any more.
  void quit() { quitting_ = true; }
  [[nodiscard]] bool quitting() const { return quitting_; }

  // While one lives, no timer fires and no input is handled.
  class Blocking {
   public:
    explicit Blocking(EventLoop& loop) : loop_(loop) { ++loop_.blocked_; }
    ~Blocking() { loop_.unblock(); }
    Blocking(const Blocking&) = delete;
    Blocking& operator=(const Blocking&) = delete;

   private:
    EventLoop& loop_;
  };
  [[nodiscard]] bool blocked() const { return blocked_ > 0; }

  void adopt(Timer& timer) override;
  void release(Timer& timer) override;
  void restart(Timer& timer) override;
  bool layToRest(Timer& timer) override;
  void wake(Timer& timer) override;

 private:
  struct Entry;
  class Acting;
  [[nodiscard]] Entry* entryOf(const Timer& timer) const;
  void schedule(Entry& entry, Instant due);
  void unschedule(Entry& entry);
  void fire(Entry& entry);
  // Lets the ticks of resting timers go by: those before `when`, and those whose turn comes before an
  // entry's.
  void sleptUntil(Instant when);
  void passTicks(Instant horizon, const Entry* before);
  void unblock();
  void noticeSuspend();
  [[nodiscard]] Entry* firstDue(Instant horizon) const;

  Clock& clock_;
  std::vector<std::unique_ptr<Entry>> entries_;
  std::vector<Entry*> queue_;    // the timers that are on and awake, by due time, then creation
  std::vector<Entry*> resting_;  // those that rest, with the first tick that has not gone by
  Ticks ticks_;
  std::uint64_t created_ = 0;
  std::vector<std::uint64_t> actions_;  // what runs, each inside the one before it
  std::uint64_t lastAction_ = 0;
  std::deque<std::function<void()>> held_;  // until no sound blocks the loop
  std::function<void()> pump_;
  std::function<std::optional<Instant>()> nextInput_;
  std::function<void(const std::string&)> faultHandler_;
  std::function<void()> rescheduled_;
  std::function<void()> suspended_;
  Instant suspendedBefore_;
  int blocked_ = 0;
  bool quitting_ = false;
};

}  // namespace platform
