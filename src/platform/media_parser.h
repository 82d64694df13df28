// Reads the media command strings and calls a backend for them.
#pragma once

#include "platform/media_backend.h"
#include "platform/media_commands.h"

namespace platform {

class ParsedMediaCommands final : public MediaCommands {
 public:
  explicit ParsedMediaCommands(MediaBackend& backend) : backend_(backend) {}
  std::string send(const std::string& command) override;
  void workIn(const std::string& folder) override;

 private:
  MediaBackend& backend_;
  std::string folder_;
};

}  // namespace platform
