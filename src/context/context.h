// What every subsystem's logic is handed: the forms, the shared state, the loop, the outside.
#pragma once

#include "context/rehearsals.h"
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
  Rehearsals* rehearsals = nullptr;  // null where rides are not rehearsed
};

}  // namespace context
