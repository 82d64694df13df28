// A machine on which nothing plays: every command goes unanswered, as one that fails does.
#pragma once

#include "platform/media_commands.h"

namespace desktop {

class NoMedia final : public platform::MediaCommands {
 public:
  std::string send(const std::string&) override { return {}; }
  void workIn(const std::string&) override {}
};

}  // namespace desktop
