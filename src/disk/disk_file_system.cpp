#include "disk/disk_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "disk/disk_file.h"
#include "disk/reasons.h"
#include "platform/fault.h"
#include "platform/text.h"

namespace disk {
namespace {

namespace fs = std::filesystem;
using platform::OpenMode;
using Names = std::vector<std::pair<std::string, std::string>>;  // in lower case to sort by, as it is

int flagsOf(OpenMode mode) {
  switch (mode) {
    case OpenMode::Read:
      return O_RDONLY | O_CLOEXEC;
    case OpenMode::ReadWriteCreate:
      return O_RDWR | O_CREAT | O_CLOEXEC;
    case OpenMode::CreateNew:
      return O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC;
  }
  return O_RDONLY;
}

// As a system call tells it.
int told(const std::error_code& error) {
  errno = error.value();
  return error ? -1 : 0;
}

int readNames(const std::string& folder, Names& names) {
  names.clear();
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code vanished;
    if (!at->is_regular_file(vanished)) continue;
    std::string name = at->path().filename().string();
    names.emplace_back(platform::lowerAscii(name), std::move(name));
  }
  return told(error);
}

// With the folders above it, each for the rider alone.
int makeFolders(const fs::path& path) {
  if (::mkdir(path.c_str(), S_IRWXU) == 0) return 0;
  if (errno == ENOENT && path.has_relative_path()) {
    if (makeFolders(path.parent_path()) < 0) return -1;
    if (::mkdir(path.c_str(), S_IRWXU) == 0) return 0;
  }
  const int reason = errno;
  std::error_code unknown;
  if (reason == EEXIST && fs::is_directory(path, unknown)) return 0;
  errno = unknown ? unknown.value() : reason;
  return -1;
}

// Owners and rights can only be given by who has the right to, and not on every disk.
bool refusedByRights(int result) {
  return result < 0 && (errno == EPERM || errno == EINVAL || errno == ENOTSUP);
}

}  // namespace

bool DiskFileSystem::exists(const std::string& path) const {
  struct stat status {};
  if (attempt_.make("stat", [&] { return ::stat(path.c_str(), &status); }) == 0) return true;
  static constexpr std::array nothingThere{ENOENT, ENOTDIR, ENAMETOOLONG, ELOOP};
  // Anything else may hide a file, and who took it for missing might write over it.
  if (std::find(nothingThere.begin(), nothingThere.end(), errno) == nothingThere.end()) fail("de lire", path);
  return false;
}

std::unique_ptr<platform::RandomFile> DiskFileSystem::open(const std::string& path, OpenMode mode) {
  constexpr int rights = S_IRUSR | S_IWUSR;  // what a rider composes and records is nobody else's
  const int descriptor =
      attempt_.make("open", [&] { return ::open(path.c_str(), flagsOf(mode), rights); });  // NOLINT(*-vararg)
  if (descriptor < 0) fail("d'ouvrir", path);
  auto file = std::make_unique<DiskFile>(attempt_, path, descriptor);
  struct stat status {};
  // A folder opens for reading without an error.
  if (::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) fail("d'ouvrir", path, EISDIR);
  return file;
}

void DiskFileSystem::makeFolder(const std::string& path) {
  if (attempt_.make("mkdir", [&] { return makeFolders(path); }) < 0) fail("de créer le dossier", path);
}

std::vector<std::string> DiskFileSystem::list(const std::string& folder) const {
  Names names;
  if (attempt_.make("list", [&] { return readNames(folder, names); }) < 0 && errno != ENOENT)
    fail("de lire le dossier", folder);
  std::sort(names.begin(), names.end());
  std::vector<std::string> sorted;
  sorted.reserve(names.size());
  for (auto& [key, name] : names) sorted.push_back(std::move(name));
  return sorted;
}

void DiskFileSystem::remove(const std::string& path) {
  if (attempt_.make("unlink", [&] { return std::remove(path.c_str()); }) < 0) fail("de supprimer", path);
}

void DiskFileSystem::rename(const std::string& from, const std::string& to) {
  if (attempt_.make("rename", [&] { return std::rename(from.c_str(), to.c_str()); }) < 0)
    fail("de renommer", from);
  syncFolderOf(to);
}

// A failure is no fault: the file is there under its new name, and whole under whichever a power cut leaves.
void DiskFileSystem::syncFolderOf(const std::string& path) const {
  const std::string folder = fs::path(path).parent_path().string();
  const int descriptor = attempt_.make("open", [&] {
    return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);  // NOLINT(*-vararg)
  });
  if (descriptor < 0) return;
  static_cast<void>(attempt_.make("sync", [&] { return ::fsync(descriptor); }));
  ::close(descriptor);
}

std::string DiskFileSystem::targetOf(const std::string& path) const {
  constexpr int longestChain = 40;  // as for the system itself
  std::string target = path;
  for (int link = 0; link < longestChain; ++link) {
    std::array<char, PATH_MAX> text{};
    const ssize_t size = attempt_.move("readlink", text.size(), [&](std::size_t allowed) {
      return ::readlink(target.c_str(), text.data(), allowed);
    });
    if (size < 0 && (errno == EINVAL || errno == ENOENT)) return target;  // no link
    if (size < 0) fail("de lire", path);
    const fs::path linked(std::string(text.data(), static_cast<std::size_t>(size)));
    target = (fs::path(target).parent_path() / linked).string();
  }
  fail("de lire", path, ELOOP);
}

void DiskFileSystem::copyRights(const std::string& from, const std::string& to) {
  struct stat wanted {};
  struct stat present {};
  const auto statusOf = [&](const std::string& path, struct stat& status) {
    if (attempt_.make("stat", [&] { return ::stat(path.c_str(), &status); }) < 0) fail("de lire", path);
  };
  statusOf(from, wanted);
  statusOf(to, present);
  if (!S_ISREG(wanted.st_mode)) throw platform::FileFault("de remplacer", from, "ce n'est pas un fichier");
  const auto own = [&](uid_t user) {
    return attempt_.make("chown", [&] { return ::chown(to.c_str(), user, wanted.st_gid); });
  };
  const bool sameOwner = wanted.st_uid == present.st_uid && wanted.st_gid == present.st_gid;
  constexpr auto unchanged = static_cast<uid_t>(-1);
  int result = sameOwner ? 0 : own(wanted.st_uid);
  if (refusedByRights(result)) result = own(unchanged);  // the group at least
  if (result == 0 || refusedByRights(result)) {
    constexpr mode_t rights = 0777;
    result = attempt_.make("chmod", [&] { return ::chmod(to.c_str(), wanted.st_mode & rights); });
  }
  if (result < 0 && !refusedByRights(result)) fail("d'écrire dans", to);
}

}  // namespace disk
