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
  // The rider cancelled during one of the waits, or the next boundary came: nothing more is to be done.
  struct Overtaken {};
  struct Beginning {
    std::uint64_t cancels = 0;
    std::uint64_t boundary = 0;
  };

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
  // The voice's waits, after which the boundary may be overtaken.
  void pause();
  void hold();
  void sayHolding(const std::string& name);
  void leaveIfOvertaken() const;

  voice::Toolbox tools_;
  const Reset& reset_;
  forms::MainForm& main_;
  model::SharedState& state_;
  std::uint64_t boundaries_ = 0;
  Beginning beginning_;
};

}  // namespace runner
