#include "disk/disk_file_system.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "platform/fault.h"
#include "platform/whole_file.h"
#include "rehearsal/memory_file_system.h"

namespace {

namespace fs = std::filesystem;
using platform::FileFault;
using platform::OpenMode;
using testing::ElementsAre;
using testing::HasSubstr;

class DiskFileSystemTest : public testing::Test {
 protected:
  DiskFileSystemTest() { fs::create_directory(folder_); }
  ~DiskFileSystemTest() override { fs::remove_all(folder_); }
  [[nodiscard]] std::string in(const std::string& name) const { return (folder_ / name).string(); }

  void save(const std::string& path) {
    platform::WholeFile file(disk_, path, platform::WholeFile::Start::OldBytes);
    file.writeAt(0, std::string("new"));
    file.commit();
  }

  fs::path folder_ = fs::temp_directory_path() / ("ventoria-disk-" + std::to_string(getpid()));
  disk::DiskFileSystem disk_;
};

// The real disk and the one in memory must agree, or tests with the latter prove nothing.
void writesAndReadsAnywhere(platform::FileSystem& files, const std::string& folder) {
  files.makeFolder(folder);
  const std::string path = folder + "/é b.tq2";
  {
    const auto file = files.open(path, OpenMode::ReadWriteCreate);
    file->writeAt(4, std::string("five"));
    file->writeAt(0, std::string("a"));
    EXPECT_EQ(file->size(), 8U);
  }
  const auto again = files.open(path, OpenMode::ReadWriteCreate);
  again->writeAt(1, std::string("b"));
  std::string bytes(20, '?');
  EXPECT_EQ(again->readAt(0, bytes), 8U);
  EXPECT_EQ(bytes.substr(0, 9), std::string("ab\0\0five?", 9));
  EXPECT_EQ(again->readAt(7, bytes), 1U);
  EXPECT_EQ(again->readAt(100, bytes), 0U);
  for (const char* name : {"Zebre.tq2", "arc.tq2", "Bosse.tq2"}) {
    EXPECT_NE(files.open(folder + "/" + name, OpenMode::ReadWriteCreate), nullptr);
  }
  EXPECT_THAT(files.list(folder), ElementsAre("arc.tq2", "Bosse.tq2", "Zebre.tq2", "é b.tq2"));
  EXPECT_THAT(files.list(folder + "/none"), ElementsAre());
  files.rename(path, folder + "/arc.tq2");
  EXPECT_FALSE(files.exists(path));
  EXPECT_EQ(files.open(folder + "/arc.tq2", OpenMode::Read)->size(), 8U);
  files.remove(folder + "/arc.tq2");
  EXPECT_FALSE(files.exists(folder + "/arc.tq2"));
  EXPECT_TRUE(files.exists(folder));
}

TEST_F(DiskFileSystemTest, WritesAndReadsAnywhereAsInMemory) {
  writesAndReadsAnywhere(disk_, in("deep/er"));
  EXPECT_THAT(disk_.list(in("deep")), ElementsAre()) << "folders are no files";
  rehearsal::MemoryFileSystem memory;
  writesAndReadsAnywhere(memory, "/deep/er");
}

TEST_F(DiskFileSystemTest, ReplacesAFileThroughItsLinksWithItsRights) {
  disk_.makeFolder(in("far"));
  std::ofstream(in("far/real")) << "old and longer";
  fs::permissions(in("far/real"), fs::perms{0640});
  fs::create_symlink("real", in("far/second"));
  fs::create_symlink(in("far/second"), in("first"));
  fs::create_symlink("far/not yet", in("fresh"));
  save(in("first"));
  save(in("fresh"));
  std::string bytes(20, '?');
  EXPECT_EQ(disk_.open(in("far/real"), OpenMode::Read)->readAt(0, bytes), 14U);
  EXPECT_THAT(bytes, testing::StartsWith("new and longer?"));
  EXPECT_EQ(fs::status(in("far/real")).permissions(), fs::perms{0640});
  EXPECT_TRUE(fs::is_symlink(in("first")));
  EXPECT_EQ(disk_.open(in("far/not yet"), OpenMode::Read)->size(), 3U);
  // Without a commit nothing remains; what a crash left goes, also beside what a link leads to.
  platform::WholeFile(disk_, in("far/real"), platform::WholeFile::Start::Empty).writeAt(0, std::string("x"));
  EXPECT_THAT(disk_.list(in("far")), ElementsAre("not yet", "real", "second"));
  for (const char* name : {".ventoria-7.partiel", "far/.ventoria-1.partiel", "far/.ventoria"})
    std::ofstream(in(name)) << "x";
  platform::removeLeftovers(disk_, folder_.string());
  EXPECT_THAT(disk_.list(folder_.string()), ElementsAre("first", "fresh"));
  EXPECT_THAT(disk_.list(in("far")), ElementsAre(".ventoria", "not yet", "real", "second"));
}

TEST_F(DiskFileSystemTest, MakesFilesAndFoldersForTheRiderAlone) {
  const mode_t before = umask(0);
  disk_.makeFolder(in("new/er/"));
  save(in("new/saved"));
  static_cast<void>(disk_.open(in("new/opened"), OpenMode::ReadWriteCreate));
  umask(before);
  const std::pair<const char*, unsigned> made[]{
      {"new", 0700}, {"new/er", 0700}, {"new/saved", 0600}, {"new/opened", 0600}};
  for (const auto& [name, rights] : made)
    EXPECT_EQ(fs::status(in(name)).permissions(), fs::perms{rights}) << name;
}

// A call that a signal interrupts without end is given up.
TEST_F(DiskFileSystemTest, EndsWhereEachAttemptIsInterrupted) {
  const disk::DiskFileSystem interrupted([](std::string_view, std::size_t&) { return EINTR; });
  EXPECT_THROW(static_cast<void>(interrupted.list(folder_.string())), FileFault);
}

TEST_F(DiskFileSystemTest, TellsFaultsInFrench) {
  std::ofstream(in("plain")) << "x";
  disk_.makeFolder(in("empty"));
  fs::create_symlink("round", in("round"));
  ASSERT_EQ(mkfifo(in("pipe").c_str(), 0600), 0);
  const std::pair<std::function<void()>, std::string> cases[]{
      {[&] { static_cast<void>(disk_.open(in("no"), OpenMode::Read)); },
       "d'ouvrir « " + in("no") + " » : fichier introuvable."},
      {[&] { static_cast<void>(disk_.open(in("empty"), OpenMode::Read)); }, "c'est un dossier"},
      {[&] { static_cast<void>(disk_.open(in("plain/x"), OpenMode::ReadWriteCreate)); },
       "n'est pas un dossier"},
      {[&] { static_cast<void>(disk_.open(in(std::string(300, 'x')), OpenMode::ReadWriteCreate)); },
       "nom trop long"},
      {[&] { disk_.open("/dev/full", OpenMode::ReadWriteCreate)->writeAt(0, std::string("x")); },
       "d'écrire dans « /dev/full » : espace disque insuffisant."},
      {[&] { disk_.open(in("plain"), OpenMode::Read)->writeAt(0, std::string("x")); }, "d'écrire dans"},
      {[&] { disk_.makeFolder(in("plain")); }, "de créer le dossier"},
      {[&] { disk_.makeFolder(in("plain/sub")); }, "de créer le dossier"},
      {[&] { disk_.remove(in("no")); }, "de supprimer « " + in("no") + " » : fichier introuvable."},
      {[&] { disk_.rename(in("no"), in("yes")); }, "de renommer"},
      {[&] { save(in("pipe")); }, "d'écrire dans « " + in("pipe") + " » : ce n'est pas un fichier."},
      {[&] { save(in("empty")); }, "c'est un dossier"},
      {[&] { save(in("none/x")); }, "d'écrire dans « " + in("none/x") + " » : fichier introuvable."},
      {[&] { save(in("round")); }, "ses liens tournent en rond"},
  };
  for (const auto& [act, told] : cases) {
    try {
      act();
      ADD_FAILURE() << "no fault: " << told;
    } catch (const FileFault& fault) {
      EXPECT_THAT(fault.what(), HasSubstr(told));
    }
  }
}

}  // namespace
