// The real disk.
#pragma once

#include "disk/attempts.h"
#include "platform/file_system.h"

namespace disk {

class DiskFileSystem final : public platform::FileSystem {
 public:
  explicit DiskFileSystem(BeforeCall before = {}) : attempt_(std::move(before)) {}

  [[nodiscard]] bool exists(const std::string& path) const override;
  [[nodiscard]] std::unique_ptr<platform::RandomFile> open(const std::string& path,
                                                           platform::OpenMode mode) override;
  void makeFolder(const std::string& path) override;  // with the folders above it
  [[nodiscard]] std::vector<std::string> list(const std::string& folder) const override;
  void remove(const std::string& path) override;
  void rename(const std::string& from, const std::string& to) override;
  [[nodiscard]] std::string targetOf(const std::string& path) const override;
  void copyRights(const std::string& from, const std::string& to) override;

 private:
  void syncFolderOf(const std::string& path) const;

  Attempts attempt_;
};

}  // namespace disk
