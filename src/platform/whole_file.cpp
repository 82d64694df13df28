#include "platform/whole_file.h"

#include <set>
#include <vector>

#include "platform/each_on_its_own.h"
#include "platform/fault.h"

namespace platform {
namespace {

// Hidden, and with two endings that no dialog of ours proposes: no rider's file is called so.
constexpr std::string_view nameStart = ".ventoria-";
constexpr std::string_view nameEnd = ".partiel";

std::string folderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

std::string freeName(const FileSystem& files, const std::string& folder) {
  for (int number = 1;; ++number) {
    std::string path = folder;
    path.append(nameStart).append(std::to_string(number)).append(nameEnd);
    if (!files.exists(path)) return path;
  }
}

}  // namespace

template <class Act>
auto WholeFile::toldOfPath(const Act& act) const {
  try {
    return act();
  } catch (const FileFault& fault) {
    throw FileFault("d'écrire dans", path_, fault.reason());
  }
}

WholeFile::WholeFile(FileSystem& files, std::string path, Start start, std::string beside)
    : files_(files), path_(std::move(path)), beside_(std::move(beside)) {
  toldOfPath([&] {
    target_ = files_.targetOf(path_);
    if (beside_.empty()) beside_ = freeName(files_, folderOf(target_));
    // Opened for writing, so that a protected file is not replaced.
    const bool replaces = files_.exists(target_);
    const auto old = replaces ? files_.open(target_, OpenMode::ReadWriteCreate) : nullptr;
    file_ = files_.open(beside_, OpenMode::CreateNew);
    try {
      if (old) files_.copyRights(target_, beside_);
      if (old && start == Start::OldBytes) copyOldBytes(*old);
    } catch (...) {
      file_.reset();
      eachOnItsOwn([&] { files_.remove(beside_); });
      throw;
    }
  });
}

WholeFile::~WholeFile() {
  if (!file_) return;
  file_.reset();
  eachOnItsOwn([&] { files_.remove(beside_); });
}

void WholeFile::copyOldBytes(RandomFile& old) {
  constexpr std::size_t blockSize = 64 * 1024;
  std::vector<char> block(blockSize);
  for (std::uint64_t at = 0;;) {
    const std::size_t got = old.readAt(at, block);
    if (got > 0) file_->writeAt(at, {block.data(), got});
    if (got < block.size()) return;
    at += got;
  }
}

std::size_t WholeFile::readAt(std::uint64_t offset, std::span<char> into) {
  return toldOfPath([&] { return file_->readAt(offset, into); });
}

void WholeFile::writeAt(std::uint64_t offset, std::span<const char> bytes) {
  toldOfPath([&] { file_->writeAt(offset, bytes); });
}

void WholeFile::sync() {
  toldOfPath([&] { file_->sync(); });
}

std::uint64_t WholeFile::size() const {
  return toldOfPath([&] { return file_->size(); });
}

void WholeFile::commit() {
  toldOfPath([&] {
    file_->sync();
    files_.rename(beside_, target_);
    file_.reset();
  });
}

void removeLeftovers(FileSystem& files, const std::string& folder) {
  const std::string inside = folder.ends_with('/') ? folder : folder + "/";
  std::set<std::string> folders{inside};
  eachOnItsOwn([&] {
    for (const std::string& name : files.list(folder))
      folders.insert(folderOf(files.targetOf(inside + name)));
  });
  for (const std::string& each : folders) {
    eachOnItsOwn([&] {
      for (const std::string& name : files.list(each)) {
        if (name.starts_with(nameStart) && name.ends_with(nameEnd))
          eachOnItsOwn([&] { files.remove(each + name); });
      }
    });
  }
}

}  // namespace platform
