// Media without a device: keeps what was sent, answers what the test laid down.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/media_commands.h"

namespace support {

struct RecordedMedia final : platform::MediaCommands {
  std::vector<std::string> sent;
  std::map<std::string, std::string> answers;
  std::string folder;

  std::string send(const std::string& command) override {
    sent.push_back(command);
    const auto found = answers.find(command);
    return found == answers.end() ? std::string() : found->second;
  }
  void workIn(const std::string& where) override { folder = where; }
};

}  // namespace support
