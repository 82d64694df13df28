// Session files, made record by record.
#pragma once

#include <string>

namespace support {

// A header that announces so many sequences, and records of a minute each.
inline std::string session(int announced, int records) {
  std::string bytes(static_cast<std::size_t>(150 * (records + 1)), ' ');
  bytes.replace(0, 1, std::to_string(announced + 1)).replace(84, 4, "ver2");
  for (std::size_t at = 165; at < bytes.size(); at += 150) {
    bytes.replace(at, 4, "Plat").replace(at + 61, 8, "00:01:00").replace(at + 69, 5, "-----");
  }
  return bytes;
}

}  // namespace support
