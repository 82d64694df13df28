// Media players and the recorder, worked by command strings such as "play capture from 0".
#pragma once

#include <string>

namespace platform {

class MediaCommands {
 public:
  virtual ~MediaCommands() = default;
  // Carries out one command and gives its answer. The answer is empty where the command fails or has nothing
  // to answer. Throws nothing, because callers do not check whether a command succeeded.
  virtual std::string send(const std::string& command) = 0;
  // The folder in which "save" writes a name that has no folder of its own.
  virtual void workIn(const std::string& folder) = 0;
};

}  // namespace platform
