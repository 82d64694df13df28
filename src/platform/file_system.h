// Every contact with the disk: random-access record files, folders, listings.
// Paths are UTF-8 with the system's separator. Faults are FileFault, in French.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace platform {

// A file open for random access; closed by its destruction.
class RandomFile {
 public:
  virtual ~RandomFile() = default;
  // Reads up to `into.size()` bytes at `offset`; returns how many there were (fewer at the end).
  virtual std::size_t readAt(std::uint64_t offset, std::span<char> into) = 0;
  // Writes all of `bytes` at `offset`, growing the file with zero bytes where needed.
  virtual void writeAt(std::uint64_t offset, std::span<const char> bytes) = 0;
  // Returns once all that was written lies on the disk itself.
  virtual void sync() = 0;
  [[nodiscard]] virtual std::uint64_t size() const = 0;
};

enum class OpenMode {
  Read,
  ReadWriteCreate,
  CreateNew,  // fails where something of that name exists
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;
  // A file or folder. Throws where that cannot be known.
  [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
  [[nodiscard]] virtual std::unique_ptr<RandomFile> open(const std::string& path, OpenMode mode) = 0;
  virtual void makeFolder(const std::string& path) = 0;
  // Names (not paths) of the plain files in a folder, sorted without regard to case; none if it is missing.
  [[nodiscard]] virtual std::vector<std::string> list(const std::string& folder) const = 0;
  virtual void remove(const std::string& path) = 0;
  // Replaces what stands at `to`; one of the two stands there at every moment.
  virtual void rename(const std::string& from, const std::string& to) = 0;
  // Where a link at `path` leads to in the end; the path itself where there is none.
  [[nodiscard]] virtual std::string targetOf(const std::string& path) const = 0;
  // Gives one file the rights and the owner of another, as far as the rider may.
  virtual void copyRights(const std::string& from, const std::string& to) = 0;
};

}  // namespace platform
