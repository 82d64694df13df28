#include "runner/end_time.h"

#include "forms/main_form_words.h"
#include "forms/whole_ride.h"
#include "platform/text.h"

namespace runner {
namespace {

constexpr int sliceEvery = 10;    // ms, while a rehearsal is under way
constexpr int pauseEvery = 5000;  // ms, while a pause puts the end off

// "Fin vers 18 h 42"
std::string endText(platform::LocalTime end) {
  const auto minute = std::chrono::round<std::chrono::minutes>(end);
  const std::chrono::hh_mm_ss time{minute - std::chrono::floor<std::chrono::days>(minute)};
  return "Fin vers " + std::to_string(time.hours().count()) + " h " +
         platform::zeroPadded(time.minutes().count(), 2);
}

}  // namespace

EndTime::EndTime(const context::Context& context)
    : context_(context), main_(context.screens.main), state_(context.state), forecast_(context.rehearsals) {
  main_.TimerEnd.tick.handle([this] { tick(); });
}

void EndTime::countdownBegins() {
  paused_.reset();
  main_.EndTime.caption = "";
  if (state_.nbSequences > 0) rehearse();
}

// With the settings and the music as they are now.
void EndTime::rehearse() {
  rehearsed_ = {{}, forms::rideSettings(main_), forms::rideMusic(context_.screens)};
  model::WholeRide ride = rehearsed_;
  ride.order = {state_.plan, state_.nbSequences, state_.nbSeances, state_.dureeTotale};
  ride.order.plan.sequenceCourante = 0;
  forecast_.begin(ride);
  main_.TimerEnd.interval = sliceEvery;
  main_.TimerEnd.enabled = true;
}

void EndTime::tick() {
  if (!forms::rideUnderWay(main_, state_)) {
    main_.TimerEnd.enabled = false;
    forecast_.drop();
    return;
  }
  if (!forecast_.goOn()) return;
  main_.TimerEnd.interval = pauseEvery;
  main_.TimerEnd.enabled = paused_.has_value();
  show();
}

void EndTime::rowBegins() {
  rowBegan_ = context_.loop.clock().now();
  if (paused_) paused_ = rowBegan_;
  // The rider may have changed what is said.
  if (rehearsed_.settings != forms::rideSettings(main_)) rehearse();
  show();
}

void EndTime::pauseBegins() {
  paused_ = context_.loop.clock().now();
  main_.TimerEnd.enabled = true;
}

void EndTime::pauseEnds() {
  if (!paused_) return;
  rowBegan_ += context_.loop.clock().now() - *paused_;
  paused_.reset();
  show();
}

void EndTime::show() {
  const std::optional<model::Timeline>& timeline = forecast_.timeline();
  const int place = (state_.seanceCourante - 1) * state_.nbSequences + state_.plan.sequenceCourante - 1;
  if (!timeline || !state_.plan.started() || place >= static_cast<int>(timeline->rows.size())) {
    main_.EndTime.caption = "";
    return;
  }
  const platform::Clock& clock = context_.loop.clock();
  const platform::Instant left =
      timeline->rows.back().ends - timeline->rows[static_cast<std::size_t>(place)].begins;
  const platform::Instant reached = paused_.value_or(clock.now()) - rowBegan_;
  main_.EndTime.caption = endText(clock.localTime() + left - reached);
}

}  // namespace runner
