#include "editor/ride_forecast.h"

#include <chrono>

#include "forms/whole_ride.h"
#include "model/grid_rows.h"
#include "platform/text.h"

namespace editor {
namespace {

// "00:35:12", and a day or more as "1 j 02:03:04".
std::string lengthText(model::Moment length) {
  const long long seconds = std::chrono::round<std::chrono::seconds>(length).count();
  const long long days = seconds / model::secondsADay;
  return (days > 0 ? std::to_string(days) + " j " : std::string()) + model::formatSeconds(seconds);
}

}  // namespace

RideForecast::RideForecast(const context::Context& context)
    : context_(context), editor_(context.screens.editor), forecast_(context.rehearsals) {
  editor_.TimerForecast.tick.handle([this] { look(); });
  editor_.TimerForecastSlice.tick.handle([this] { goOn(); });
}

void RideForecast::look() {
  // What the other pages decide can change only while this one is hidden.
  const bool hidden = !editor_.visible || context_.rehearsals == nullptr;
  if (!hidden) {
    model::WholeRide now;
    if (model::canBeRidden(editor_.ListView1)) now = forms::wholeRide(context_.screens);
    const bool rests = now == seen_;
    if (!rests) {
      seen_ = std::move(now);
      return;
    }
    if (rehearsed_ != seen_) {
      rehearsed_ = seen_;
      forecast_.drop();
      if (rehearsed_.order.sequences > 0) forecast_.begin(rehearsed_);
      editor_.TimerForecastSlice.enabled = true;
    }
  }
  editor_.TimerForecast.rest({&editor_.visible, &editor_.ListView1.changes});
}

void RideForecast::goOn() {
  if (!forecast_.goOn()) return;
  editor_.TimerForecastSlice.enabled = false;
  show();
}

void RideForecast::show() {
  const std::optional<model::Timeline>& timeline = forecast_.timeline();
  context_.state.tooShort = {};
  editor_.RealDuration.caption = "";  // what draws the rows looks at this
  if (!timeline) return;
  const char* how = forms::voiceOn(context_.screens.main) ? "avec la voix ≈ " : "sans la voix ≈ ";
  // The same rows come again in each pass; the first pass is the one whose number is said.
  for (const model::TimedRow& row : timeline->rows) {
    if (row.pass == 1) context_.state.tooShort.push_back(row.excess());
  }
  editor_.RealDuration.caption = how + lengthText(timeline->ridden());
  forecast_.drop();  // of a day's list it is megabytes
}

}  // namespace editor
