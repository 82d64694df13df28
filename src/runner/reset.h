// Putting a ride back to rest: the cancel button, and the start button that opens the countdown frame or
// stops.
#pragma once

#include <cstdint>

#include "voice/toolbox.h"

namespace runner {

class Reset {
 public:
  explicit Reset(const voice::Toolbox& tools);

  void annulerSeance();
  void boutonStart();

  // Grows with each cancel: whoever waited in the midst of a ride sees by it that the ride is gone.
  [[nodiscard]] std::uint64_t cancels() const { return cancels_; }

 private:
  void startManualChrono();

  voice::Toolbox tools_;
  forms::MainForm& main_;
  model::SharedState& state_;
  std::uint64_t cancels_ = 0;
};

}  // namespace runner
