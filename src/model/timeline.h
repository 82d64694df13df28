// When everything happens in a ride that nobody interrupts. All moments are real time since the press that
// started the countdown.
#pragma once

#include <string>
#include <vector>

#include "platform/clock.h"

namespace model {

using Moment = platform::Instant;

struct TimedSound {
  Moment begins{0};
  Moment ends{0};
  int prompt = 0;    // number in the bank of prompts; 0: an announcement of the rider's own
  std::string name;  // of the prompt, or the announcement's path
};

// The music is held while the voice speaks.
struct TimedHold {
  Moment begins{0};
  Moment ends{0};
};

// A command to the music's device, in the words of platform/media_commands.h.
struct TimedCommand {
  Moment at{0};
  std::string command;
};

struct TimedRow {
  int pass = 1;
  int row = 1;        // of the plan
  Moment begins{0};   // its announcing
  Moment ends{0};     // where the next row begins, or the ride is over
  Moment spoken{0};   // what the voice says before its first second is counted
  Moment planned{0};  // its own duration

  // By how much its announcements are longer than itself; 0: they are not, or it has no time of its own.
  [[nodiscard]] Moment excess() const {
    return planned > Moment{0} && spoken > planned ? spoken - planned : Moment{0};
  }
};

struct Timeline {
  std::vector<TimedSound> sounds;
  std::vector<TimedHold> holds;
  std::vector<TimedCommand> music;
  std::vector<TimedRow> rows;  // pass after pass
  Moment end{0};               // the last word has been said

  // From the first row's beginning to the last row's end.
  [[nodiscard]] Moment ridden() const {
    return rows.empty() ? Moment{0} : rows.back().ends - rows.front().begins;
  }
};

}  // namespace model
