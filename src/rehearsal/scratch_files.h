// A disk in memory for a program that must not touch the rider's: of his, only the announcements, the
// music and his own voice are there, to be read.
#pragma once

#include <algorithm>
#include <array>
#include <string>

#include "platform/file_system.h"
#include "rehearsal/memory_file_system.h"

namespace rehearsal {

class ScratchFiles final : public platform::FileSystem {
 public:
  // `folder` is the program's, without a separator at its end.
  ScratchFiles(platform::FileSystem& riders, const std::string& folder)
      : riders_(riders), shared_{folder + "/annonces/", folder + "/ambiances/", folder + "/voix/"} {}

  [[nodiscard]] bool exists(const std::string& path) const override {
    return memory_.exists(path) || (isShared(path) && riders_.exists(path));
  }
  std::unique_ptr<platform::RandomFile> open(const std::string& path, platform::OpenMode mode) override {
    const bool read = mode == platform::OpenMode::Read && isShared(path) && !memory_.exists(path);
    return read ? riders_.open(path, mode) : memory_.open(path, mode);
  }
  void makeFolder(const std::string& path) override { memory_.makeFolder(path); }
  [[nodiscard]] std::vector<std::string> list(const std::string& folder) const override {
    return isShared(folder.ends_with('/') ? folder : folder + "/") ? riders_.list(folder)
                                                                   : memory_.list(folder);
  }
  void remove(const std::string& path) override { memory_.remove(path); }
  void rename(const std::string& from, const std::string& to) override { memory_.rename(from, to); }
  [[nodiscard]] std::string targetOf(const std::string& path) const override { return path; }
  void copyRights(const std::string&, const std::string&) override {}

 private:
  [[nodiscard]] bool isShared(const std::string& path) const {
    return std::any_of(shared_.begin(), shared_.end(),
                       [&](const std::string& folder) { return path.starts_with(folder); });
  }

  MemoryFileSystem memory_;
  platform::FileSystem& riders_;
  std::array<std::string, 3> shared_;
};

}  // namespace rehearsal
