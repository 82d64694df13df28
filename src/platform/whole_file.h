// A file that is replaced whole or not at all: written beside its place, and put there once it lies on the
// disk.
#pragma once

#include <memory>
#include <string>

#include "platform/file_system.h"

namespace platform {

// Links are followed, and rights and owner of a file that is replaced are kept. Without commit() nothing
// remains of it. Whatever fails is told as a FileFault of `path`, whose file then stands as it was.
class WholeFile final : public RandomFile {
 public:
  enum class Start { Empty, OldBytes };  // OldBytes: as a copy of the file that is replaced

  // `beside` is the path to write under, if not one of our own.
  WholeFile(FileSystem& files, std::string path, Start start, std::string beside = {});
  ~WholeFile() override;
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;

  std::size_t readAt(std::uint64_t offset, std::span<char> into) override;
  void writeAt(std::uint64_t offset, std::span<const char> bytes) override;
  void sync() override;
  [[nodiscard]] std::uint64_t size() const override;
  // Puts it into its place.
  void commit();

 private:
  template <class Act>
  auto toldOfPath(const Act& act) const;
  void copyOldBytes(RandomFile& old);

  FileSystem& files_;
  std::string path_;
  std::string beside_;
  std::string target_;  // the path behind links
  std::unique_ptr<RandomFile> file_;
};

// Removes what a power cut or a crash left of such files in a folder, and beside what its links lead to.
void removeLeftovers(FileSystem& files, const std::string& folder);

}  // namespace platform
