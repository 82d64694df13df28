#include "platform/event_loop.h"

#include <gmock/gmock.h>

#include "platform/each_on_its_own.h"
#include "platform/timer.h"
#include "rehearsal/simulated_clock.h"

namespace {

using namespace std::chrono_literals;
using platform::Instant;
using testing::ElementsAre;

struct TwoTimers : platform::Form {
  TwoTimers() : Form("TwoTimers") {}
  platform::Timer first{*this, "first", 100, true};
  platform::Timer second{*this, "second", 100, true};
  platform::Timer slow{*this, "slow", 1000};
};

class Loop : public testing::Test {
 protected:
  Loop() {
    form_.attach(loop_);
    form_.load();
    loop_.onFault([this](const std::string& text) { faults_.push_back(text); });
  }
  void log(platform::Timer& timer) {
    timer.tick.handle(
        [this, &timer] { fired_.push_back(timer.name() + std::to_string(clock_.now().count())); });
  }
  void advance(Instant time) { loop_.runUntil(clock_.now() + time); }

  rehearsal::SimulatedClock clock_{platform::LocalTime{}};
  platform::EventLoop loop_{clock_};
  TwoTimers form_;
  std::vector<std::string> fired_;
  std::vector<std::string> faults_;
};

TEST_F(Loop, FiresByDueTimeThenByCreation) {
  log(form_.first);
  log(form_.second);
  form_.first.interval = 150;
  advance(300ms);
  EXPECT_THAT(fired_, ElementsAre("second100", "first150", "second200", "first300", "second300"));
}

TEST_F(Loop, ALateTimerFiresOnceAndKeepsItsPhase) {
  log(form_.first);
  form_.second.enabled = false;
  clock_.sleepUntil(350ms);  // the clock moves, nothing fires
  EXPECT_TRUE(fired_.empty());
  advance(0ms);
  advance(60ms);
  EXPECT_THAT(fired_, ElementsAre("first350", "first400"));
}

TEST_F(Loop, TurningOnWhatIsOnChangesNothingOffAndOnStartsAnew) {
  log(form_.first);
  form_.second.enabled = false;
  advance(60ms);
  form_.first.enabled = true;
  advance(50ms);
  form_.first.enabled = false;
  form_.first.enabled = true;
  advance(100ms);
  form_.first.interval = 30;
  advance(30ms);
  EXPECT_THAT(fired_, ElementsAre("first100", "first210", "first240"));
}

TEST_F(Loop, AHandlerThatWaitsIsNotEnteredAgainButOthersAre) {
  log(form_.second);
  form_.first.tick.handle([this] {
    fired_.push_back("in" + std::to_string(clock_.now().count()));
    loop_.runUntil(clock_.now() + 250ms);
    fired_.push_back("out" + std::to_string(clock_.now().count()));
  });
  advance(400ms);
  // The timer fell due at 200 and at 300 while its handler ran, and fires once when that has ended.
  EXPECT_THAT(fired_, ElementsAre("in100", "second100", "second200", "second300", "out350", "in350",
                                  "second400", "second500", "second600", "out600"));
}

TEST_F(Loop, ABlockingSoundStopsEverything) {
  int pumped = 0;
  loop_.onInput([&] { ++pumped; });
  log(form_.first);
  form_.second.enabled = false;
  {
    const platform::EventLoop::Blocking blocking(loop_);
    clock_.sleepUntil(500ms);
    loop_.serveEvents();
    EXPECT_EQ(pumped, 0);
    EXPECT_TRUE(fired_.empty());
  }
  loop_.serveEvents();
  EXPECT_EQ(pumped, 1);
  EXPECT_THAT(fired_, ElementsAre("first500"));
}

TEST_F(Loop, WhatIsHeldBackDuringASoundRunsInOrderWhereEventsAreServed) {
  form_.second.enabled = false;
  int wakes = 0;
  loop_.onReschedule([&] { ++wakes; });
  log(form_.first);
  const auto say = [this](const char* what) { return [this, what] { fired_.emplace_back(what); }; };
  const auto sound = [this](Instant length, auto... during) {
    const platform::EventLoop::Blocking outer(loop_);
    const platform::EventLoop::Blocking inner(loop_);  // a device blocks inside the voice's block
    (loop_.whenFree(during), ...);
    clock_.sleepUntil(clock_.now() + length);
  };
  const auto speaks = [&] { sound(10ms, say("during")), fired_.emplace_back("behind"); };
  const auto waits = [&] { advance(0ms), fired_.emplace_back("waited"); };
  loop_.guard([&] {
    sound(
        90ms, speaks, [] { throw std::runtime_error("plein"); }, waits, say("last"));
    EXPECT_THAT(fired_, testing::IsEmpty()) << "on top of the caller";
    EXPECT_EQ(wakes, 1);
    EXPECT_EQ(loop_.nextDue(), 90ms);
  });
  advance(30ms);
  EXPECT_THAT(fired_, ElementsAre("behind", "first100", "last", "during", "waited"));
  EXPECT_THAT(faults_, ElementsAre("plein"));
  EXPECT_EQ(loop_.nextDue(), 200ms);

  fired_.clear();
  sound(10ms, say("first"));
  loop_.whenFree(say("second"));  // free again, but no events served yet
  EXPECT_THAT(fired_, ElementsAre("first", "second"));
  sound(
      10ms, [this] { loop_.quit(); }, say("too late"));
  loop_.serveEvents();
  loop_.whenFree(say("too late"));
  EXPECT_EQ(fired_.size(), 2U);
}

TEST_F(Loop, AHandlerSlowerThanItsPeriodDoesNotKeepTheCallerForEver) {
  form_.second.enabled = false;
  int runs = 0;
  form_.first.tick.handle([&] {
    ++runs;
    clock_.sleepUntil(clock_.now() + 300ms);
  });
  clock_.sleepUntil(100ms);
  loop_.serveEvents();
  EXPECT_EQ(runs, 1);
}

TEST_F(Loop, AFaultEndsItsHandlerIsToldOnceAndLaterTicksGoOn) {
  form_.second.enabled = false;
  int runs = 0;
  form_.first.tick.handle([&] {
    ++runs;
    throw std::runtime_error(runs < 4 ? "disque plein" : "autre");
  });
  advance(500ms);
  EXPECT_EQ(runs, 5);
  EXPECT_THAT(faults_, ElementsAre("disque plein", "autre"));
}

TEST(EachOnItsOwn, GoesOnBehindAFailure) {
  std::string done;
  platform::eachOnItsOwn([&] { done += 'a'; }, [] { throw platform::Fault("x"); }, [&] { done += 'b'; });
  EXPECT_EQ(done, "ab");
}

TEST_F(Loop, AnUnloadedFormIsSilentEvenFromItsOwnTick) {
  form_.second.enabled = false;
  form_.first.tick.handle([this] {
    fired_.emplace_back("first");
    form_.unload();
    form_.load();
    form_.unload();
  });
  advance(500ms);
  EXPECT_THAT(fired_, ElementsAre("first"));
  form_.load();
  advance(100ms);
  EXPECT_EQ(fired_.size(), 2U);
}

TEST_F(Loop, QuittingEndsWaitsAndTimersAtOnce) {
  log(form_.second);
  form_.first.tick.handle([this] { loop_.quit(); });
  advance(10s);
  EXPECT_EQ(clock_.now(), 100ms);
  EXPECT_TRUE(fired_.empty());
}

}  // namespace
