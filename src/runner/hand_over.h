// From the editor to the ride: the grid's rows become the run plan, and the main screen comes back.
#pragma once

#include "context/context.h"
#include "model/ride_order.h"
#include "runner/ride_waits.h"

namespace runner {

class HandOver {
 public:
  HandOver(const context::Context& context, RideWaits& waits);

  // Readies the countdown of this ride. A ride that is under way is abandoned.
  void begin(const model::RideOrder& order);

 private:
  void validerSeance();
  // If a row that would be ridden has no valid duration, tells the rider, selects it and returns true.
  [[nodiscard]] bool refuseWrongDuration();
  void prepareOtherForms();
  void resetRide();
  void showTitle();

  context::Context context_;
  RideWaits& waits_;
  forms::MainForm& main_;
  forms::CreerCycle& editor_;
  model::SharedState& state_;
};

}  // namespace runner
