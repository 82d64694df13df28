#include "platform/disk_file_system.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/fault.h"
#include "platform/text.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

std::string reasonOf(const std::error_code& error) {
  static const std::array<std::pair<std::errc, const char*>, 15> reasons{{
      {std::errc::no_such_file_or_directory, "fichier introuvable"},
      {std::errc::permission_denied, "accès refusé"},
      {std::errc::operation_not_permitted, "accès refusé"},
      {std::errc::no_space_on_device, "espace disque insuffisant"},
      {std::errc::read_only_file_system, "disque en lecture seule"},
      {std::errc::is_a_directory, "c'est un dossier"},
      {std::errc::not_a_directory, "une partie du chemin n'est pas un dossier"},
      {std::errc::file_exists, "un fichier de ce nom existe déjà"},
      {std::errc::directory_not_empty, "le dossier n'est pas vide"},
      {std::errc::filename_too_long, "nom trop long"},
      {std::errc::file_too_large, "fichier trop grand"},
      {std::errc::too_many_files_open, "trop de fichiers ouverts"},
      {std::errc::device_or_resource_busy, "fichier occupé"},
      {std::errc::cross_device_link, "les deux chemins ne sont pas sur le même disque"},
      {std::errc::io_error, "erreur du disque"},
  }};
  for (const auto& [code, words] : reasons) {
    if (error == code) return words;
  }
  return "erreur " + std::to_string(error.value());
}

[[noreturn]] void fail(const std::string& action, const std::string& path, const std::error_code& error) {
  throw FileFault(action, path, reasonOf(error));
}

[[noreturn]] void failByErrno(const std::string& action, const std::string& path) {
  fail(action, path, std::error_code(errno, std::generic_category()));
}

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream openStream(const std::string& path, OpenMode mode) {
  if (mode == OpenMode::Read) return {std::fopen(path.c_str(), "rb"), &std::fclose};
  std::FILE* file = std::fopen(path.c_str(), "r+b");
  if (file == nullptr && errno == ENOENT) file = std::fopen(path.c_str(), "w+bx");
  return {file, &std::fclose};
}

class DiskFile final : public RandomFile {
 public:
  DiskFile(std::string path, Stream stream) : path_(std::move(path)), stream_(std::move(stream)) {
    // Unbuffered, so that on a full disk the write itself fails, and not a later flush.
    std::setvbuf(stream_.get(), nullptr, _IONBF, 0);
  }

  std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
    seek(offset, "de lire");
    const std::size_t got = std::fread(into.data(), 1, into.size(), stream_.get());
    if (got < into.size() && std::ferror(stream_.get()) != 0) failByErrno("de lire", path_);
    return got;
  }

  void writeAt(std::uint64_t offset, std::span<const char> bytes) override {
    seek(offset, "d'écrire dans");
    if (std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) != bytes.size()) {
      failByErrno("d'écrire dans", path_);
    }
  }

  [[nodiscard]] std::uint64_t size() const override {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path_, error);
    if (error) fail("de lire", path_, error);
    return size;
  }

 private:
  void seek(std::uint64_t offset, const char* action) {
    std::clearerr(stream_.get());
    if (std::fseek(stream_.get(), static_cast<long>(offset), SEEK_SET) != 0) failByErrno(action, path_);
  }

  std::string path_;
  Stream stream_;
};

}  // namespace

bool DiskFileSystem::exists(const std::string& path) const {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

std::unique_ptr<RandomFile> DiskFileSystem::open(const std::string& path, OpenMode mode) {
  std::error_code ignored;
  // fopen() opens a folder for reading without reporting an error.
  if (fs::is_directory(path, ignored))
    fail("d'ouvrir", path, std::make_error_code(std::errc::is_a_directory));
  Stream stream = openStream(path, mode);
  if (!stream) failByErrno("d'ouvrir", path);
  return std::make_unique<DiskFile>(path, std::move(stream));
}

void DiskFileSystem::makeFolder(const std::string& path) {
  std::error_code error;
  fs::create_directories(path, error);
  if (!error && !fs::is_directory(path, error) && !error)
    error = std::make_error_code(std::errc::file_exists);
  if (error) fail("de créer le dossier", path, error);
}

std::vector<std::string> DiskFileSystem::list(const std::string& folder) const {
  std::vector<std::pair<std::string, std::string>> names;  // in lower case to sort by, as it is
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::error_code vanished;
    if (!at->is_regular_file(vanished)) continue;
    std::string name = at->path().filename().string();
    names.emplace_back(lowerAscii(name), std::move(name));
  }
  if (error && error != std::errc::no_such_file_or_directory) fail("de lire le dossier", folder, error);
  std::sort(names.begin(), names.end());
  std::vector<std::string> sorted;
  sorted.reserve(names.size());
  for (auto& [key, name] : names) sorted.push_back(std::move(name));
  return sorted;
}

void DiskFileSystem::remove(const std::string& path) {
  std::error_code error;
  const bool removed = fs::remove(path, error);
  if (!removed && !error) error = std::make_error_code(std::errc::no_such_file_or_directory);
  if (error) fail("de supprimer", path, error);
}

void DiskFileSystem::rename(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error) fail("de renommer", from, error);
}

}  // namespace platform
