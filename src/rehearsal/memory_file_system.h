// A disk in memory that records each call.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/fault.h"
#include "platform/file_system.h"
#include "platform/text.h"

namespace rehearsal {

using platform::OpenMode;
using platform::RandomFile;

class MemoryFileSystem final : public platform::FileSystem {
 public:
  using Bytes = std::shared_ptr<std::string>;

  std::map<std::string, Bytes> files;
  std::set<std::string> folders;
  std::vector<std::string> calls;

  void put(const std::string& path, std::string bytes) {
    files[path] = std::make_shared<std::string>(std::move(bytes));
  }

  [[nodiscard]] bool exists(const std::string& path) const override {
    return files.contains(path) || folders.contains(trimmed(path));
  }
  std::unique_ptr<RandomFile> open(const std::string& path, OpenMode mode) override {
    calls.push_back((mode == OpenMode::Read ? "read " : "write ") + path);
    if (mode == OpenMode::CreateNew && files.contains(path))
      throw platform::FileFault("d'ouvrir", path, "un fichier de ce nom existe déjà");
    if (!files.contains(path)) {
      if (mode == OpenMode::Read) throw platform::FileFault("d'ouvrir", path, "fichier introuvable");
      put(path, {});
    }
    return std::make_unique<File>(files.at(path));
  }
  void makeFolder(const std::string& path) override {
    calls.push_back("folder " + path);
    folders.insert(trimmed(path));
  }
  [[nodiscard]] std::vector<std::string> list(const std::string& folder) const override {
    std::vector<std::string> names;
    const std::string start = trimmed(folder) + "/";
    for (const auto& [path, bytes] : files) {
      if (path.starts_with(start) && path.find('/', start.size()) == std::string::npos)
        names.push_back(path.substr(start.size()));
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
      return platform::lowerAscii(a) < platform::lowerAscii(b);
    });
    return names;
  }
  void remove(const std::string& path) override {
    calls.push_back("remove " + path);
    if (files.erase(path) == 0) throw platform::FileFault("de supprimer", path, "fichier introuvable");
  }
  void rename(const std::string& from, const std::string& to) override {
    calls.push_back("rename " + from + " " + to);
    if (!files.contains(from)) throw platform::FileFault("de renommer", from, "fichier introuvable");
    auto moved = files.extract(from);
    moved.key() = to;
    files.erase(to);
    files.insert(std::move(moved));
  }

  [[nodiscard]] std::string targetOf(const std::string& path) const override { return path; }
  void copyRights(const std::string&, const std::string&) override {}

 private:
  class File final : public RandomFile {
   public:
    explicit File(Bytes bytes) : bytes_(std::move(bytes)) {}
    std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
      if (offset >= bytes_->size()) return 0;
      return bytes_->copy(into.data(), into.size(), offset);
    }
    void writeAt(std::uint64_t offset, std::span<const char> bytes) override {
      if (bytes_->size() < offset + bytes.size()) bytes_->resize(offset + bytes.size());
      std::copy(bytes.begin(), bytes.end(), bytes_->begin() + static_cast<std::ptrdiff_t>(offset));
    }
    void sync() override {}
    [[nodiscard]] std::uint64_t size() const override { return bytes_->size(); }

   private:
    Bytes bytes_;
  };

  static std::string trimmed(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
  }
};

}  // namespace rehearsal
