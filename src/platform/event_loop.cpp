#include "platform/event_loop.h"

#include <algorithm>
#include <utility>

#include "platform/timer.h"

namespace platform {

struct EventLoop::Entry {
  Entry(Timer& itsTimer, std::uint64_t created) : timer(&itsTimer), order(created) {}

  Timer* timer;
  std::uint64_t order;
  Instant due{0};
  bool queued = false;
  bool resting = false;
  bool running = false;
  bool released = false;
  std::string lastFault;  // so that a timer that fails at every tick says so once

  [[nodiscard]] Instant period() const { return Instant{timer->interval.get()}; }
  [[nodiscard]] bool comesBefore(const Entry& other) const {
    return due != other.due ? due < other.due : order < other.order;
  }
  // The first tick after an instant that is not before the present one.
  [[nodiscard]] Instant tickAfter(Instant when) const {
    return due + ((when - due) / period() + 1) * period();
  }
};

class EventLoop::Acting {
 public:
  explicit Acting(EventLoop& loop) : loop_(loop) { loop_.actions_.push_back(++loop_.lastAction_); }
  ~Acting() { loop_.actions_.pop_back(); }
  Acting(const Acting&) = delete;
  Acting& operator=(const Acting&) = delete;

 private:
  EventLoop& loop_;
};

EventLoop::EventLoop(Clock& clock, Ticks ticks)
    : clock_(clock), ticks_(ticks), suspendedBefore_(clock.suspended()) {}

EventLoop::~EventLoop() {
  for (const auto& entry : entries_) {
    if (entry->timer != nullptr) entry->timer->scheduler_ = nullptr;
  }
}

EventLoop::Entry* EventLoop::entryOf(const Timer& timer) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const auto& entry) { return entry->timer == &timer; });
  return found == entries_.end() ? nullptr : found->get();
}

void EventLoop::schedule(Entry& entry, Instant due) {
  entry.due = due;
  entry.queued = true;
  const auto place = std::find_if(queue_.begin(), queue_.end(),
                                  [&](const Entry* other) { return entry.comesBefore(*other); });
  queue_.insert(place, &entry);
}

void EventLoop::unschedule(Entry& entry) {
  if (entry.queued) queue_.erase(std::find(queue_.begin(), queue_.end(), &entry));
  if (entry.resting) resting_.erase(std::find(resting_.begin(), resting_.end(), &entry));
  entry.queued = false;
  entry.resting = false;
}

void EventLoop::adopt(Timer& timer) {
  std::erase_if(entries_, [](const auto& entry) { return entry->released && !entry->running; });
  entries_.push_back(std::make_unique<Entry>(timer, created_++));
  timer.scheduler_ = this;
  restart(timer);
}

void EventLoop::release(Timer& timer) {
  Entry* entry = entryOf(timer);
  if (entry == nullptr) return;
  unschedule(*entry);
  timer.scheduler_ = nullptr;
  entry->timer = nullptr;
  entry->released = true;  // its handler may be running: the next adoption erases the entry
}

void EventLoop::restart(Timer& timer) {
  Entry* entry = entryOf(timer);
  if (entry == nullptr) return;
  unschedule(*entry);
  timer.forgetWhatItRestsOn();
  if (timer.enabled && timer.interval > 0) schedule(*entry, clock_.now() + Instant{timer.interval.get()});
  if (rescheduled_) rescheduled_();
}

bool EventLoop::layToRest(Timer& timer) {
  Entry* entry = entryOf(timer);
  if (entry == nullptr || ticks_ == Ticks::Every) return false;
  if (entry->resting) return true;
  if (!entry->queued) return false;
  unschedule(*entry);
  entry->resting = true;
  resting_.push_back(entry);
  return true;
}

void EventLoop::wake(Timer& timer) {
  Entry* entry = entryOf(timer);
  if (entry == nullptr || !entry->resting) return;
  unschedule(*entry);
  schedule(*entry, entry->due);
  if (rescheduled_) rescheduled_();
}

void EventLoop::sleptUntil(Instant when) {
  if (blocked()) return;
  for (Entry* entry : resting_) {
    if (entry->due < when && !entry->running) entry->due = entry->tickAfter(when - Instant{1});
  }
}

void EventLoop::passTicks(Instant horizon, const Entry* before) {
  const Instant now = clock_.now();
  for (Entry* entry : resting_) {
    if (entry->due > horizon || entry->running) continue;
    if (before == nullptr || entry->comesBefore(*before)) entry->due = entry->tickAfter(now);
  }
}

EventLoop::Entry* EventLoop::firstDue(Instant horizon) const {
  for (Entry* entry : queue_) {
    if (entry->due > horizon) return nullptr;
    if (!entry->running) return entry;
  }
  return nullptr;
}

std::optional<Instant> EventLoop::nextDue() const {
  if (!held_.empty() && !blocked()) return clock_.now();
  for (const Entry* entry : queue_) {
    if (!entry->running) return entry->due;
  }
  return std::nullopt;
}

void EventLoop::fire(Entry& entry) {
  const Instant next = entry.tickAfter(clock_.now());
  unschedule(entry);
  schedule(entry, next);
  entry.running = true;
  try {
    const Acting acting(*this);
    entry.timer->tick();
    entry.lastFault.clear();
  } catch (const std::exception& fault) {
    if (entry.lastFault != fault.what()) {
      entry.lastFault = fault.what();
      if (faultHandler_) faultHandler_(fault.what());
    }
  }
  entry.running = false;
}

bool EventLoop::runs(std::uint64_t action) const {
  return std::find(actions_.begin(), actions_.end(), action) != actions_.end();
}

void EventLoop::serveEvents() {
  fireDue();
  runHeld();
  if (pump_ && !blocked()) pump_();
  noticeSuspend();  // what waits goes on only after it
}

void EventLoop::noticeSuspend() {
  constexpr Instant shortest{1000};
  const Instant suspended = clock_.suspended();
  if (suspended - suspendedBefore_ < shortest) return;
  suspendedBefore_ = suspended;
  if (suspended_) whenFree(suspended_);
}

void EventLoop::fireDue() {
  if (blocked()) return;
  noticeSuspend();
  // Only what is due now: handlers that take longer than their own period must not keep the caller here.
  const Instant horizon = clock_.now();
  while (!quitting_ && !blocked()) {
    Entry* entry = firstDue(horizon);
    passTicks(horizon, entry);
    if (entry == nullptr) break;
    fire(*entry);
  }
}

void EventLoop::runUntil(Instant when) {
  for (;;) {
    serveEvents();
    if (quitting_ || clock_.now() >= when) return;
    const Instant timer = nextDue().value_or(when);
    const Instant input = (nextInput_ ? nextInput_() : std::nullopt).value_or(when);
    const Instant asleep = clock_.now();
    clock_.sleepUntil(std::min({when, timer, input}));
    if (clock_.now() > asleep) sleptUntil(clock_.now());
  }
}

void EventLoop::unblock() {
  --blocked_;
  if (!blocked() && rescheduled_) rescheduled_();
}

void EventLoop::whenFree(std::function<void()> action) {
  if (actions_.empty()) sleptUntil(clock_.now());  // a front's own loop has slept until this came
  held_.push_back(std::move(action));
  runHeld();
}

void EventLoop::runHeld() {
  // An action that waits serves events, so the next ones in the queue may run inside it.
  while (!quitting_ && !blocked() && !held_.empty()) {
    const std::function<void()> action = std::move(held_.front());
    held_.pop_front();
    guard(action);
  }
}

void EventLoop::guard(const std::function<void()>& action) {
  try {
    const Acting acting(*this);
    action();
  } catch (const std::exception& fault) {
    if (faultHandler_) faultHandler_(fault.what());
  }
}

}  // namespace platform
