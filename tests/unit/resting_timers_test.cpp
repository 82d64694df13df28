#include <gmock/gmock.h>

#include <array>
#include <memory>
#include <random>

#include "platform/event_loop.h"
#include "platform/observable.h"
#include "platform/timer.h"
#include "rehearsal/simulated_clock.h"

namespace {

using namespace std::chrono_literals;
using platform::EventLoop;
using platform::Instant;
using platform::Timer;

// Timers that look whether one of three variables has changed, and rest where none has, among others that
// change them, wait, play sounds and turn timers off and on, all by the same dice.
class Crowd {
 public:
  Crowd(unsigned seed, EventLoop::Ticks ticks) : dice_(seed), loop_(clock_, ticks) {
    form_.attach(loop_);
    for (int i = 0; i < 9; ++i) {
      const int interval = roll(1, 8) * (roll(0, 3) == 0 ? 7 : 10);
      timers_.push_back(std::make_unique<Timer>(form_, "T" + std::to_string(i), interval, roll(0, 4) > 0));
      Timer& timer = *timers_.back();
      if (roll(0, 2) == 0) {
        timer.tick.handle([this] { act(); });
      } else {
        timer.tick.handle([this, &timer, i, a = pick(), b = pick()] { look(timer, i, a, b); });
      }
    }
    form_.load();
  }

  std::vector<std::string> run() {
    for (int i = 0; i < 25; ++i) {
      loop_.runUntil(clock_.now() + Instant{roll(1, 90)});
      if (roll(0, 2) == 0) variables_.at(pick()) = roll(0, 3);  // by the rider
    }
    return journal_;
  }
  [[nodiscard]] int looks() const { return looks_; }

 private:
  int roll(int from, int to) { return std::uniform_int_distribution<int>(from, to)(dice_); }
  std::size_t pick() { return static_cast<std::size_t>(roll(0, 2)); }

  void write(int who, int what) {
    journal_.push_back(std::to_string(clock_.now().count()) + " " + std::to_string(who) + " " +
                       std::to_string(what));
  }

  void look(Timer& timer, int who, std::size_t a, std::size_t b) {
    ++looks_;
    const int sum = variables_.at(a) * 10 + variables_.at(b);
    int& seen = seen_[static_cast<std::size_t>(who)];
    if (sum == seen) return timer.rest({&variables_.at(a), &variables_.at(b)});
    write(who, seen = sum);
    if (who % 2 == 0) variables_.at(b) = sum % 3;
  }

  void act() {
    Timer& other = *timers_[static_cast<std::size_t>(roll(0, static_cast<int>(timers_.size()) - 1))];
    switch (roll(0, 7)) {
      case 0:
        other.enabled = !other.enabled;
        break;
      case 1:
        other.interval = roll(1, 30);
        break;
      case 2:
        loop_.runUntil(clock_.now() + Instant{roll(1, 60)});
        break;
      case 3: {
        const EventLoop::Blocking sound(loop_);
        clock_.sleepUntil(clock_.now() + Instant{roll(1, 60)});
        break;
      }
      default:
        break;
    }
    variables_.at(pick()) = roll(0, 3);
    write(-1, variables_[0] * 100 + variables_[1] * 10 + variables_[2]);
  }

  std::mt19937 dice_;
  rehearsal::SimulatedClock clock_{platform::LocalTime{}};
  EventLoop loop_;
  platform::Form form_{"F"};
  std::array<platform::Variable<int>, 3> variables_;
  std::vector<std::unique_ptr<Timer>> timers_;
  std::array<int, 9> seen_{};
  std::vector<std::string> journal_;
  int looks_ = 0;
};

TEST(RestingTimers, DoAtTheSameTicksWhatTheyWouldDoAwake) {
  int looksAwake = 0;
  int looksRested = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    Crowd awake(seed, EventLoop::Ticks::Every);
    Crowd rested(seed, EventLoop::Ticks::RestWhereIdle);
    const std::vector<std::string> expected = awake.run();
    ASSERT_EQ(rested.run(), expected) << "seed " << seed;
    looksAwake += awake.looks();
    looksRested += rested.looks();
  }
  EXPECT_LT(looksRested * 4, looksAwake * 3);
}

TEST(RestingTimers, WakeNobodyUntilWhatTheyWaitForChanges) {
  rehearsal::SimulatedClock clock{platform::LocalTime{}};
  EventLoop loop(clock);
  platform::Form form{"F"};
  form.attach(loop);
  platform::Variable<int> order{0};
  Timer timer{form, "T", 10, true};
  int ticks = 0;
  timer.tick.handle([&] {
    ++ticks;
    timer.rest({&order});
  });
  form.load();
  loop.runUntil(35ms);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(loop.nextDue(), std::nullopt);
  order = 0;
  EXPECT_EQ(loop.nextDue(), std::nullopt);
  order = 1;
  EXPECT_EQ(loop.nextDue(), 40ms);
  loop.runUntil(1000ms);
  timer.wake();
  EXPECT_EQ(loop.nextDue(), 1010ms);
}

}  // namespace
