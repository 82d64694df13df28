// Putting a ride back to rest: the cancel button, and the start button that opens the countdown frame or
// stops.
#pragma once

#include "context/context.h"
#include "runner/ride_waits.h"
#include "voice/voice.h"

namespace runner {

class Reset {
 public:
  Reset(const context::Context& context, voice::Voice& voice, RideWaits& waits);

 private:
  void annulerSeance();
  void boutonStart();
  void startManualChrono();

  context::Context context_;
  voice::Voice& voice_;
  RideWaits& waits_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
