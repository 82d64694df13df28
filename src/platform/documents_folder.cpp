#include "platform/documents_folder.h"

#include <filesystem>
#include <fstream>
#include <string_view>

#include "platform/environment.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

// Lines such as XDG_DOCUMENTS_DIR="$HOME/Documents".
std::string fromUserDirs(const fs::path& file, const std::string& home) {
  constexpr std::string_view start = "XDG_DOCUMENTS_DIR=\"";
  constexpr std::string_view homeWord = "$HOME";
  std::ifstream lines(file);
  std::string found;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.rfind('"');
    if (!line.starts_with(start) || end < start.size()) continue;
    found = line.substr(start.size(), end - start.size());
    if (found.starts_with(homeWord)) found.replace(0, homeWord.size(), home);
  }
  return fs::path(found).is_absolute() ? found : std::string();
}

}  // namespace

std::string documentsFolder() {
  const std::string home = environmentVariable("HOME");
  if (std::string set = environmentVariable("XDG_DOCUMENTS_DIR"); fs::path(set).is_absolute()) return set;
  fs::path config = environmentVariable("XDG_CONFIG_HOME");
  if (!config.is_absolute()) config = fs::path(home) / ".config";
  std::string told = fromUserDirs(config / "user-dirs.dirs", home);
  return told.empty() ? (fs::path(home) / "Documents").string() : told;
}

}  // namespace platform
