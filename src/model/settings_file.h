// `par.tq3`: the sound-warning settings, one record of 30 bytes. docs/files.md has every byte.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/file_system.h"

namespace model {

inline constexpr std::size_t settingsBoxCount = 13;

struct Settings {
  std::array<int, settingsBoxCount> boxes{};  // Check1 to Check13
  std::string countdown;                      // s, two characters

  bool operator==(const Settings&) const = default;
};

// The first record; none where a field shows that the file was damaged. Throws platform::FileFault.
[[nodiscard]] std::optional<Settings> readSettings(platform::FileSystem& files, const std::string& path);
void writeSettings(platform::FileSystem& files, const std::string& path, const Settings& settings);

}  // namespace model
