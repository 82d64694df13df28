#include "platform/file_copy.h"

#include <vector>

#include "platform/each_on_its_own.h"

namespace platform {
namespace {

constexpr std::size_t blockSize = 1024 * 1024;

bool copyBlocks(FileSystem& files, const std::string& from, const std::string& to,
                const CopyProgress& progress) {
  const std::unique_ptr<RandomFile> source = files.open(from, OpenMode::Read);
  const std::unique_ptr<RandomFile> target = files.open(to, OpenMode::ReadWriteCreate);
  const std::uint64_t total = source->size();
  std::vector<char> block(blockSize);
  for (std::uint64_t done = 0;;) {
    const std::size_t got = source->readAt(done, block);
    if (got > 0) target->writeAt(done, {block.data(), got});
    done += got;
    if (progress && !progress(done, total)) return false;
    if (got < block.size()) return true;
  }
}

}  // namespace

bool copyFile(FileSystem& files, const std::string& from, const std::string& to,
              const CopyProgress& progress) {
  const std::string partial = to + ".partiel";
  const auto discard = [&] {
    if (files.exists(partial)) files.remove(partial);
  };
  discard();
  try {
    if (copyBlocks(files, from, partial, progress)) {
      files.rename(partial, to);
      return true;
    }
  } catch (...) {
    eachOnItsOwn(discard);
    throw;
  }
  discard();
  return false;
}

}  // namespace platform
