// The program's own level and the rider's desktop, kept as what was asked of them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/output_level.h"
#include "platform/shell.h"

namespace support {

struct RecordedLevel final : platform::OutputLevel {
  std::vector<std::pair<int, int>> levels;
  void set(std::uint16_t left, std::uint16_t right) override { levels.emplace_back(left, right); }
};

struct RecordedShell final : platform::Shell {
  std::vector<std::string> opened;
  bool network = true;
  void openFile(const std::string& path) override { opened.push_back(path); }
  void openAddress(const std::string& url) override { opened.push_back(url); }
  void openSoundSettings() override { opened.emplace_back("sound settings"); }
  bool connected() override { return network; }
};

}  // namespace support
