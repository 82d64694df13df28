// The countdown before a ride, its frame, and the pause.
#pragma once

#include "context/context.h"
#include "runner/advance.h"
#include "voice/voice.h"

namespace runner {

class Countdown {
 public:
  Countdown(const context::Context& context, voice::Voice& voice, Advance& advance, EndTime& endTime);

 private:
  void lancerCompteRebours();
  void tickCompteRebours();
  void basculerPause();
  void openFrame();
  void leaveFrame();
  void chooseLength();
  void chooseManualTime();
  void replaceInvalidLength();
  void applyTypedLength();
  void applyTypedTime();
  void goToEditor();

  context::Context context_;
  voice::Voice& voice_;
  Advance& advance_;
  EndTime& endTime_;
  forms::MainForm& main_;
  model::SharedState& state_;
};

}  // namespace runner
