// A disk whose n-th call of a kind fails, as a full or protected disk does.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/fault.h"
#include "platform/file_system.h"

namespace support {

class FaultyFileSystem final : public platform::FileSystem {
 public:
  enum class Call { Open, Write, MakeFolder, List };

  explicit FaultyFileSystem(platform::FileSystem& inner) : inner_(inner) {}

  // From the call of that kind numbered `number` on (1 is the next one), all fail.
  void failFrom(Call call, int number) { failing_ = call, left_ = number; }
  void heal() { left_ = -1; }

  [[nodiscard]] bool exists(const std::string& path) const override { return inner_.exists(path); }
  std::unique_ptr<platform::RandomFile> open(const std::string& path, platform::OpenMode mode) override {
    failIfDue(Call::Open, "d'ouvrir", path, "accès refusé");
    return std::make_unique<File>(inner_.open(path, mode), [this, path] {
      failIfDue(Call::Write, "d'écrire dans", path, "espace disque insuffisant");
    });
  }
  void makeFolder(const std::string& path) override {
    failIfDue(Call::MakeFolder, "de créer le dossier", path, "accès refusé");
    inner_.makeFolder(path);
  }
  [[nodiscard]] std::vector<std::string> list(const std::string& folder) const override {
    failIfDue(Call::List, "de lire le dossier", folder, "accès refusé");
    return inner_.list(folder);
  }
  void remove(const std::string& path) override { inner_.remove(path); }
  void rename(const std::string& from, const std::string& to) override { inner_.rename(from, to); }
  [[nodiscard]] std::string targetOf(const std::string& path) const override { return inner_.targetOf(path); }
  void copyRights(const std::string& from, const std::string& to) override { inner_.copyRights(from, to); }

 private:
  class File final : public platform::RandomFile {
   public:
    File(std::unique_ptr<platform::RandomFile> inner, std::function<void()> beforeWrite)
        : inner_(std::move(inner)), beforeWrite_(std::move(beforeWrite)) {}
    std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
      return inner_->readAt(offset, into);
    }
    void writeAt(std::uint64_t offset, std::span<const char> bytes) override {
      beforeWrite_();
      inner_->writeAt(offset, bytes);
    }
    void sync() override { inner_->sync(); }
    [[nodiscard]] std::uint64_t size() const override { return inner_->size(); }

   private:
    std::unique_ptr<platform::RandomFile> inner_;
    std::function<void()> beforeWrite_;
  };

  void failIfDue(Call call, const char* action, const std::string& path, const char* reason) const {
    if (call != failing_ || left_ < 0) return;
    if (left_ > 0) --left_;
    if (left_ == 0) throw platform::FileFault(action, path, reason);
  }

  platform::FileSystem& inner_;
  Call failing_ = Call::Open;
  mutable int left_ = -1;
};

}  // namespace support
