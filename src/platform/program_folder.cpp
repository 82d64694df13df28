#include "platform/program_folder.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/environment.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

// Permission bits do not tell of read-only disks: the only sure test is to write.
bool canBeWritten(const fs::path& folder) {
  const fs::path probe = folder / ".ventoria-write-probe";
  std::FILE* file = std::fopen(probe.c_str(), "ab");
  if (file == nullptr) return false;
  std::fclose(file);
  std::error_code ignored;
  fs::remove(probe, ignored);
  return true;
}

}  // namespace

std::string programFolder() {
  std::error_code error;
  const fs::path executable = fs::read_symlink("/proc/self/exe", error);
  if (!error && canBeWritten(executable.parent_path())) return executable.parent_path().string();
  fs::path data = environmentVariable("XDG_DATA_HOME");
  if (!data.is_absolute()) data = fs::path(environmentVariable("HOME")) / ".local" / "share";
  return (data / "ventoria").string();
}

}  // namespace platform
