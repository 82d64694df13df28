// The clock of a ride and the small timers around it. Time is counted in ticks, not measured.
#pragma once

#include "context/context.h"
#include "runner/advance.h"
#include "runner/ride_waits.h"
#include "runner/suspend.h"

namespace runner {

class Chrono {
 public:
  Chrono(const context::Context& context, Advance& advance, RideWaits& waits, Suspend& suspend);

 private:
  void tickChrono();
  void tickSurveillance();
  void tickPanneau();
  void tickEcranVeille();
  void showTarget();
  void countTotal();
  void count();
  enum class Sequence { GoesOn, HasRunOut };
  // Counts one second of the sequence.
  Sequence countSecond();
  void hidePanelBriefly();

  context::Context context_;
  Advance& advance_;
  RideWaits& waits_;
  Suspend& suspend_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
