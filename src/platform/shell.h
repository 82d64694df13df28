// What is handed to the rider's desktop: it opens files and addresses with programs of its own.
#pragma once

#include <string>

namespace platform {

class Shell {
 public:
  virtual ~Shell() = default;
  virtual void openFile(const std::string& path) = 0;
  virtual void openAddress(const std::string& url) = 0;
  virtual void openSoundSettings() = 0;
  // Whether the machine has a network.
  virtual bool connected() = 0;
};

}  // namespace platform
