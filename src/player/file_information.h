// What is known of a file: name, size, time, attributes and, for a program, its version.
#pragma once

#include <cstdint>
#include <string>

namespace player {

// Attribute bits, with the values that disks give them.
enum Attribute : std::uint32_t { ReadOnly = 1, Hidden = 2, Folder = 16, Archive = 32, Normal = 128 };

struct FileInformation {
  std::string fileName;  // with its path
  std::string name;
  std::string extension;
  std::string size;
  std::string writeTime;  // the other times are not kept by every disk
  std::string attributes;
  std::string FileVersion;
  bool found = false;  // there is version information
};

// The letters of the attributes that are set, the highest bit first.
[[nodiscard]] std::string texteAttributs(std::uint32_t bits);
// The format "#,###,###".
[[nodiscard]] std::string texteTaille(std::uint64_t bytes);

// A file carries no version here; that of the running program is handed in.
[[nodiscard]] FileInformation informationFichier(const std::string& path, const std::string& version = {});
// The file that the running program was started from.
[[nodiscard]] std::string programFile();

}  // namespace player
