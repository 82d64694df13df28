// The machine's suspend: a ride that it comes upon is paused, as the rider would do it.
#pragma once

#include "context/context.h"

namespace runner {

class Suspend {
 public:
  explicit Suspend(const context::Context& context);

  // Presses the pause button if a suspend asks for it and the rider could press it himself. To be called
  // whenever the button may have been opened.
  void pauseIfDue();

 private:
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
