// An open file of the real disk.
#pragma once

#include <string>

#include "disk/attempts.h"
#include "platform/file_system.h"

namespace disk {

class DiskFile final : public platform::RandomFile {
 public:
  // Takes over the descriptor.
  DiskFile(Attempts attempt, std::string path, int descriptor)
      : attempt_(std::move(attempt)), path_(std::move(path)), descriptor_(descriptor) {}
  ~DiskFile() override;
  DiskFile(const DiskFile&) = delete;
  DiskFile& operator=(const DiskFile&) = delete;

  std::size_t readAt(std::uint64_t offset, std::span<char> into) override;
  void writeAt(std::uint64_t offset, std::span<const char> bytes) override;
  void sync() override;
  [[nodiscard]] std::uint64_t size() const override;

 private:
  Attempts attempt_;
  std::string path_;
  int descriptor_;
};

}  // namespace disk
