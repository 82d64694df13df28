// Putting a ride back to rest: the cancel button, and the start button that opens the countdown frame or
// stops.
#pragma once

#include "runner/ride_waits.h"
#include "voice/toolbox.h"

namespace runner {

class Reset {
 public:
  Reset(const voice::Toolbox& tools, RideWaits& waits);

  void annulerSeance();
  void boutonStart();

 private:
  void startManualChrono();

  voice::Toolbox tools_;
  RideWaits& waits_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
