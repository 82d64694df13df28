// What every subsystem's logic is handed: the forms, the shared state, the loop, the outside.
#pragma once

#include "forms/screens.h"
#include "model/training_model.h"
#include "platform/event_loop.h"
#include "platform/outside.h"

namespace context {

struct Context {
  forms::Screens& screens;
  model::SharedState& state;
  platform::EventLoop& loop;
  const platform::Outside& outside;
};

}  // namespace context
