// When the ride that is under way will be over, on the wall: a rehearsal tells how long it takes from each
// row on, and pauses put it off.
#pragma once

#include <optional>

#include "context/context.h"
#include "context/forecast.h"

namespace runner {

class EndTime {
 public:
  explicit EndTime(const context::Context& context);

  void countdownBegins();
  void rowBegins();
  void pauseBegins();
  void pauseEnds();

 private:
  void tick();
  void rehearse();
  void show();

  context::Context context_;
  forms::MainForm& main_;
  model::SharedState& state_;
  context::Forecast forecast_;
  model::WholeRide rehearsed_;
  platform::Instant rowBegan_{0};  // without the pauses since
  std::optional<platform::Instant> paused_;
};

}  // namespace runner
