#include "platform/file_copy.h"

#include <vector>

#include "platform/whole_file.h"

namespace platform {
namespace {

constexpr std::size_t blockSize = 1024 * 1024;
constexpr std::size_t syncSize = 16 * blockSize;  // so that no sync at the end keeps the rider waiting

bool copyBlocks(RandomFile& source, RandomFile& target, const CopyProgress& progress) {
  const std::uint64_t total = source.size();
  std::vector<char> block(blockSize);
  for (std::uint64_t done = 0;;) {
    const std::size_t got = source.readAt(done, block);
    if (got > 0) target.writeAt(done, {block.data(), got});
    done += got;
    if (done % syncSize == 0) target.sync();
    if (progress && !progress(done, total)) return false;
    if (got < block.size()) return true;
  }
}

}  // namespace

bool copyFile(FileSystem& files, const std::string& from, const std::string& to,
              const CopyProgress& progress) {
  const std::unique_ptr<RandomFile> source = files.open(from, OpenMode::Read);
  WholeFile target(files, to, WholeFile::Start::Empty);
  if (!copyBlocks(*source, target, progress)) return false;
  target.commit();
  return true;
}

}  // namespace platform
