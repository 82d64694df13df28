// The clock of a ride and the small timers around it. Time is counted in ticks, not measured.
#pragma once

#include "runner/advance.h"
#include "runner/reset.h"
#include "voice/toolbox.h"

namespace runner {

class Chrono {
 public:
  Chrono(const voice::Toolbox& tools, Advance& advance, const Reset& reset);

  void tickChrono();
  void tickSurveillance();
  void tickPanneau();
  void tickEcranVeille();

 private:
  void showTarget();
  void countTotal();
  // One second off the sequence; false while it goes on, or when a cancel has ended it.
  [[nodiscard]] bool countSecond();
  void stepAsidePanel();

  voice::Toolbox tools_;
  Advance& advance_;
  const Reset& reset_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
