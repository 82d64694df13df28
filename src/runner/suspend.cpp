#include "runner/suspend.h"

#include "forms/main_form_words.h"
#include "model/training_model.h"

namespace runner {

Suspend::Suspend(const context::Context& context) : main_(context.screens.main), state_(context.state) {
  context.loop.onSuspend([this] {
    state_.pauseDue = true;
    pauseIfDue();
  });
}

void Suspend::pauseIfDue() {
  const bool riding = forms::rideUnderWay(main_, state_) && !forms::ridePaused(main_);
  if (!state_.pauseDue || (riding && !main_.Command7.enabled)) return;
  state_.pauseDue = false;
  if (!riding) return;
  forms::tellOfSuspend(main_);
  main_.Command7.click();
}

}  // namespace runner
