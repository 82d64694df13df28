// How long the list really takes once a voice speaks, and which of its rows are shorter than what is said
// before them: rehearsed anew whenever the list has come to rest.
#pragma once

#include "context/context.h"
#include "context/forecast.h"

namespace editor {

class RideForecast {
 public:
  explicit RideForecast(const context::Context& context);

 private:
  void look();
  void goOn();
  void show();

  context::Context context_;
  forms::CreerCycle& editor_;
  context::Forecast forecast_;
  model::WholeRide seen_;       // at the last look
  model::WholeRide rehearsed_;  // what is shown, or being rehearsed
};

}  // namespace editor
