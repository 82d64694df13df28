// The real disk.
#pragma once

#include "platform/file_system.h"

namespace platform {

class DiskFileSystem final : public FileSystem {
 public:
  [[nodiscard]] bool exists(const std::string& path) const override;
  [[nodiscard]] std::unique_ptr<RandomFile> open(const std::string& path, OpenMode mode) override;
  void makeFolder(const std::string& path) override;  // with the folders above it
  [[nodiscard]] std::vector<std::string> list(const std::string& folder) const override;
  void remove(const std::string& path) override;
  void rename(const std::string& from, const std::string& to) override;
};

}  // namespace platform
