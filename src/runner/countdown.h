// The countdown before a ride, its frame, and the pause.
#pragma once

#include "runner/advance.h"
#include "voice/toolbox.h"

namespace runner {

class Countdown {
 public:
  Countdown(const voice::Toolbox& tools, Advance& advance);

  void lancerCompteRebours();
  void tickCompteRebours();
  void basculerPause();

 private:
  [[nodiscard]] bool somethingRuns() const;
  void leaveFrame();
  void chooseLength();
  void chooseManualTime();
  void mendLength();
  void takeTypedLength();
  void takeTypedTime();
  void goToEditor();

  voice::Toolbox tools_;
  Advance& advance_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
