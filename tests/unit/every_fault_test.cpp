// Every write of the program on the real disk, each of its system calls failing once in each way: afterwards
// each file is the old or the new one, the rider is told what is not done, and the program goes on.
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include "console/session.h"
#include "disk/disk_file_system.h"
#include "support/session_bytes.h"
#include "support/simulated_program.h"

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

enum class Fault { None, NoSpace, DiskError, Interrupted, Short, FillsUp, Dies };
constexpr std::array faults{Fault::NoSpace, Fault::DiskError, Fault::Interrupted,
                            Fault::Short,   Fault::FillsUp,   Fault::Dies};

// Fails one call, and after a death all of them, for a dead program writes no more.
class FaultyCalls {
 public:
  void arm(Fault fault, int number) { fault_ = fault, left_ = number; }
  void heal() { left_ = 0, dead_ = full_ = false; }
  [[nodiscard]] int made() const { return made_; }
  [[nodiscard]] const std::string& failed() const { return failed_; }
  [[nodiscard]] bool dead() const { return dead_; }
  [[nodiscard]] bool unsynced() const { return unsynced_; }

  int before(std::string_view call, std::size_t& bytes) {
    ++made_;
    if (dead_) return EIO;
    if (call == "write") unsynced_ = true;
    if (call == "sync") unsynced_ = false;
    EXPECT_FALSE(call == "rename" && unsynced_) << "a power cut could leave an empty file under the name";
    if (std::exchange(full_, false)) return ENOSPC;
    if (left_ == 0 || --left_ > 0) return 0;
    failed_ = call;
    dead_ = fault_ == Fault::Dies;
    full_ = fault_ == Fault::FillsUp && call == "write";
    const bool cut = fault_ == Fault::Short || fault_ == Fault::FillsUp;
    if (cut && bytes > 8) bytes /= 8;  // within what a record of settings holds
    return cut ? 0 : fault_ == Fault::NoSpace ? ENOSPC : fault_ == Fault::Interrupted ? EINTR : EIO;
  }

 private:
  Fault fault_ = Fault::None;
  int left_ = 0;
  int made_ = 0;
  bool dead_ = false;
  bool full_ = false;      // the next write finds no space
  bool unsynced_ = false;  // something was written that a power cut would take
  std::string failed_;
};

struct Write {
  const char* what;
  bool used;           // by a rider before; else it is a first start
  std::string before;  // commands up to the write
  std::string act;     // the write; "" for what the start writes
};

bool isLeftover(const std::string& path) {
  return path.find("/.ventoria-") != std::string::npos || path.ends_with(".   ");
}

// An unsaved list of a program that died, put aside at the next start.
bool isKept(const std::string& path) {
  return path.starts_with("d/brouillon ");
}

class EveryFault : public testing::TestWithParam<Write> {
 protected:
  EveryFault() { fs::create_directories(home_); }
  ~EveryFault() override { fs::remove_all(home_); }

  // A program that a rider has used, and what lies elsewhere; only the latter for a first start.
  void prepare(bool used) const {
    fs::remove_all(home_);
    fs::create_directories(home_ / "ailleurs");
    put("ailleurs/Lien.tq2", support::session(1, 1));
    put("ailleurs/m.mp3", std::string(3000, 'm'));
    if (!used) return;
    for (const char* folder : {"chronodat", "annonces", "ambiances", "Vid"})
      fs::create_directories(home_ / "d" / folder);
    put("d/par.tq3", support::settingsOff + "more");
    put("d/ParPerso.tq1", "30 Masculin20006051" + std::string(21, ' '));
    put("d/chronodat/Longue.tq2", support::session(9, 9));
    put("d/chronodat/Ancienne.tq2", "2" + std::string(70, ' ') + "Non0 " + std::string(8 + 84, ' '));
    put("d/annonces/Bravo.wav", "old");
    fs::create_symlink("../../ailleurs/Lien.tq2", home_ / "d/chronodat/Lien.tq2");
  }
  void put(const std::string& path, const std::string& bytes) const {
    std::ofstream(home_ / path, std::ios::binary) << bytes;
  }
  [[nodiscard]] Files files() const {
    Files found;
    for (const auto& entry : fs::recursive_directory_iterator(home_)) {
      std::ostringstream bytes;
      if (entry.is_regular_file()) bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      if (entry.is_regular_file())
        found[fs::relative(entry.path(), home_).string() + (entry.is_symlink() ? "@" : "")] = bytes.str();
    }
    return found;
  }

  fs::path home_ = (fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
                   ("ventoria-faults-" + std::to_string(getpid()));
};

struct RealProgram {
  explicit RealProgram(const fs::path& folder)
      : home(folder.string()), session({}, (folder / "d").string(), out, nullptr, &disk) {}
  std::string run(const std::string& commands) {
    out.str({});
    std::istringstream lines(commands);
    for (std::string line; std::getline(lines, line);)
      session.interpreter().execute(std::regex_replace(line, std::regex("HOME"), home));
    return out.str();
  }
  // The messages about what failed.
  std::vector<std::string> told() {
    std::vector<std::string> messages;
    std::istringstream lines(
        run("journal dialog\nget EnrUneAnnonce.Label14.caption\nget CreerCycle.DraftText"));
    for (std::string line; std::getline(lines, line);) {
      if (line.find("Erreur est Survenue") != std::string::npos ||
          line.find("n'a pas pu") != std::string::npos)
        messages.push_back(line);
    }
    return messages;
  }

  std::string home;
  FaultyCalls calls;
  disk::DiskFileSystem disk{
      [this](std::string_view call, std::size_t& bytes) { return calls.before(call, bytes); }};
  std::ostringstream out;
  console::Session session;
};

TEST_P(EveryFault, LeavesOldOrNewAndIsTold) {
  const bool starts = GetParam().act.empty();
  const auto write = [&](RealProgram& run) {
    if (starts) return run.session.program().start();
    run.run(GetParam().act);
    return true;
  };
  const auto begin = [&](RealProgram& run) {
    prepare(GetParam().used);
    if (starts) return;
    ASSERT_TRUE(run.session.program().start());
    run.run(GetParam().before + "\njournal");
  };
  RealProgram model(home_);
  begin(model);
  const Files old = files();
  const int start = model.calls.made();
  ASSERT_TRUE(write(model));
  ASSERT_THAT(model.told(), testing::IsEmpty());
  const Files wanted = files();
  EXPECT_EQ(old == wanted, starts && GetParam().used) << "a write writes";
  EXPECT_FALSE(model.calls.unsynced());
  const int calls = model.calls.made() - start;

  const auto oldOrNew = [&](const Files& now) {
    for (const auto& [path, bytes] : now) {
      const bool known = (old.contains(path) && old.at(path) == bytes) ||
                         (wanted.contains(path) && wanted.at(path) == bytes);
      EXPECT_TRUE(known || isLeftover(path) || isKept(path)) << path << ", " << bytes.size() << " bytes";
    }
    for (const auto& [path, bytes] : old)
      EXPECT_TRUE(now.contains(path) || !wanted.contains(path) || path == "d/brouillon.tq2")
          << path << " is gone";
  };
  for (int number = 1; number <= calls; ++number) {
    for (const Fault fault : faults) {
      RealProgram run(home_);
      begin(run);
      run.calls.arm(fault, number);
      const bool started = write(run);
      SCOPED_TRACE(run.calls.failed() + ", call " + std::to_string(number) + " of " + std::to_string(calls) +
                   ", fault " + std::to_string(static_cast<int>(fault)));
      oldOrNew(files());
      const bool dead = run.calls.dead();
      run.calls.heal();
      if (!dead) {
        EXPECT_TRUE(started || run.calls.failed() == "mkdir");
        const std::vector<std::string> told = run.told();
        const bool absorbed = fault == Fault::Interrupted || fault == Fault::Short;
        EXPECT_LE(told.size(), absorbed ? 0U : 1U) << testing::PrintToString(told);
        for (const std::string& message : told) {
          EXPECT_FALSE(std::regex_search(message, std::regex("erreur \\d|\\.ventoria-|errno")));
        }
        if (told.empty()) {
          run.run("advance 31");  // what was kept of the list goes, if need be later
          EXPECT_EQ(files(), wanted) << "what is not told is done";
        } else if (!starts && files() != wanted) {
          write(run);
          EXPECT_EQ(files(), wanted) << "the program goes on";
        }
      }
      RealProgram next(home_);
      ASSERT_TRUE(next.session.program().start());
      const Files later = files();
      oldOrNew(later);
      for (const auto& [path, bytes] : later) EXPECT_FALSE(isLeftover(path)) << path;
    }
  }
}

const std::string editor = support::composeTwoRows("Plat", "10", "Sprint", "20") + "advance 1";
const std::string take =
    "press MainForm.mnEnrAnnVocale\npress EnrUneAnnonce.Command2\nadvance 1\npress EnrUneAnnonce.Command3\nadvance 9";
INSTANTIATE_TEST_SUITE_P(
    Writes, EveryFault,
    testing::Values(
        Write{"FirstStart", false, "", ""}, Write{"Start", true, "", ""},
        Write{"NewSession", true, editor, "answer Neuve.tq2\npress CreerCycle.Command6"},
        Write{"SessionOverALonger", true, editor, "answer Longue.tq2\nanswer ok\npress CreerCycle.Command6"},
        Write{"SessionThroughALink", true, editor, "answer Lien.tq2\nanswer ok\npress CreerCycle.Command6"},
        Write{"Conversion", true, "press MainForm.mnCreat",
              "answer Ancienne.tq2\nanswer ok\npress CreerCycle.MyButton4"},
        Write{"Draft", true, support::composeTwoRows("Plat", "10", "Sprint", "20"), "advance 29"},
        Write{"Settings", true, "press MainForm.mnsons\ntick MainForm.Check3 1", "press MainForm.MyButton7"},
        Write{"Figures", true, "set CreerCycle.Combo7.text 41", "call CreerCycle.MyButton40"},
        Write{"Announcement", true, take, "answer Bravo\nanswer ok\npress EnrUneAnnonce.Command1"},
        Write{"Import", true, "press MainForm.mnEnrAnnVocale",
              "answer HOME/ailleurs/m.mp3\ncall EnrUneAnnonce.MyButton4"}),
    [](const auto& tested) { return std::string(tested.param.what); });

}  // namespace
