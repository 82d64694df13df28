// From the editor to the ride: the grid's rows become the run plan, and the main screen comes back.
#pragma once

#include "context/context.h"
#include "runner/ride_waits.h"

namespace runner {

class HandOver {
 public:
  HandOver(const context::Context& context, RideWaits& waits);

 private:
  void validerSeance();
  // If a row that would be ridden has no valid duration, tells the rider, selects it and returns true.
  [[nodiscard]] bool refuseWrongDuration();
  void prepareOtherForms();
  void resetRide();
  void fillPlan();
  void showTitle();

  context::Context context_;
  RideWaits& waits_;
  forms::MainForm& main_;
  forms::CreerCycle& editor_;
  model::SharedState& state_;
};

}  // namespace runner
