#include "disk/disk_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include "disk/reasons.h"

namespace disk {

DiskFile::~DiskFile() {
  ::close(descriptor_);  // what had to reach the disk was synced
}

std::size_t DiskFile::readAt(std::uint64_t offset, std::span<char> into) {
  std::size_t done = 0;
  while (done < into.size()) {
    const auto at = static_cast<off_t>(offset + done);
    const ssize_t got = attempt_.move("read", into.size() - done, [&](std::size_t size) {
      return ::pread(descriptor_, into.data() + done, size, at);
    });
    if (got < 0) fail("de lire", path_);
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}

void DiskFile::writeAt(std::uint64_t offset, std::span<const char> bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const auto at = static_cast<off_t>(offset + done);
    const ssize_t put = attempt_.move("write", bytes.size() - done, [&](std::size_t size) {
      return ::pwrite(descriptor_, bytes.data() + done, size, at);
    });
    if (put < 0) fail("d'écrire dans", path_);
    if (put == 0) fail("d'écrire dans", path_, EIO);
    done += static_cast<std::size_t>(put);
  }
}

void DiskFile::sync() {
  // A device or a pipe has nothing to sync.
  if (attempt_.make("sync", [&] { return ::fsync(descriptor_); }) < 0 && errno != EINVAL && errno != EROFS) {
    fail("d'écrire dans", path_);
  }
}

std::uint64_t DiskFile::size() const {
  struct stat status {};
  if (attempt_.make("stat", [&] { return ::fstat(descriptor_, &status); }) < 0) fail("de lire", path_);
  return static_cast<std::uint64_t>(status.st_size);
}

}  // namespace disk
