// What every subsystem's logic is handed: the forms, the shared state, the loop, the outside, the voice.
#pragma once

#include "forms/screens.h"
#include "model/shared_state.h"
#include "platform/event_loop.h"
#include "platform/outside.h"
#include "voice/voice.h"

namespace voice {

struct Toolbox {
  forms::Screens& screens;
  model::SharedState& state;
  platform::EventLoop& loop;
  const platform::Outside& outside;
  Voice& voice;
};

}  // namespace voice
