// The boundary between two sequences: what comes next, on the screen and in the voice, or the end of the run.
#pragma once

#include "runner/reset.h"
#include "voice/toolbox.h"

namespace runner {

class Advance {
 public:
  Advance(const voice::Toolbox& tools, const Reset& reset);

  // Runs at each boundary. When it returns the chrono runs on the new sequence, or the run has ended.
  void avancerSequence();

 private:
  // The rider cancelled during one of the waits: nothing more of the boundary is to be done.
  struct Cancelled {};

  void crossBoundary();
  void choosePass();
  [[nodiscard]] bool isOver() const;
  void endRun();
  void showRideFields();
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

  [[nodiscard]] bool isAnnouncement() const;
  // The voice's waits, cut short by a cancel.
  void pause();
  void hold();
  void sayHolding(const std::string& name);
  void leaveIfCancelled() const;

  voice::Toolbox tools_;
  const Reset& reset_;
  forms::MainForm& main_;
  model::SharedState& state_;
  std::uint64_t cancelsBefore_ = 0;
};

}  // namespace runner
