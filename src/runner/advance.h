// The boundary between two sequences: what comes next, on the screen and in the voice, or the end of the run.
#pragma once

#include "context/context.h"
#include "runner/end_time.h"
#include "runner/ride_waits.h"
#include "voice/voice.h"

namespace runner {

class Advance {
 public:
  Advance(const context::Context& context, voice::Voice& voice, RideWaits& waits, EndTime& endTime);

  // Runs at each boundary. When it returns the chrono runs on the new sequence, or the run has ended.
  void avancerSequence();
  // A boundary has begun, and the new sequence's time does not run yet.
  [[nodiscard]] bool holdsTime() const { return holdsTime_; }

 private:
  void crossBoundary();
  void choosePass();
  [[nodiscard]] bool isOver() const;
  void endRun();
  void showPass();
  void sayPass();
  void showRow();
  void composeGearText();
  void nameSounds();
  void showTarget();
  void playOwnAnnouncement();
  void saySequenceNumber();
  void sayRow();
  void sayKind();
  void sayChainring();

  context::Context context_;
  voice::Voice& voice_;
  RideWaits& waits_;
  EndTime& endTime_;
  forms::MainForm& main_;
  model::SharedState& state_;
  bool holdsTime_ = false;
};

}  // namespace runner
