// The command line.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "rehearsal/simulated_sound.h"

namespace console {

struct Options {
  std::string folder;  // empty: the one that the desktop program would use
  bool realClock = false;
  platform::LocalTime start{};
  rehearsal::SoundMode sound = rehearsal::SoundMode::Instant;
  std::optional<int> volume = 80;
  std::string script;  // empty: standard input
  std::string ride;    // a session file to ride at the terminal
  double speed = 1;
  std::string timeline;     // a session file whose timeline is to be printed
  std::string recordVoice;  // the folder that somebody records the prompts into
  bool everyTick = false;   // no timer rests: for a comparison
  bool help = false;
};

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The words behind the program's name; a UsageError where they cannot be understood.
[[nodiscard]] Options parseOptions(const std::vector<std::string>& words);
[[nodiscard]] std::string usage();

}  // namespace console
