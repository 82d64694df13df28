// A program whose timers rest, and one where each of them fires every time, cannot be told apart.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <map>
#include <random>
#include <sstream>

#include "console/reach.h"
#include "model/training_model.h"
#include "support/session_bytes.h"
#include "support/simulated_program.h"

namespace {

using platform::ControlKind;
using rehearsal::SoundMode;

// All that the rider sees, and what the subsystems share.
std::string stateOf(support::SimulatedProgram& program) {
  std::string all;
  for (platform::Form* form : program.screens().all()) {
    for (platform::Component* component : form->components()) {
      all += "\n" + form->name() + "." + component->name();
      for (const platform::PropertyBase* property : component->properties()) all += " " + property->asText();
      const auto* grid = dynamic_cast<platform::Grid*>(component);
      if (grid == nullptr) continue;
      all += " " + std::to_string(grid->selectedRow());
      for (int row = 1; row <= grid->rowCount(); ++row) {
        for (int column = 1; column <= grid->columnCount(); ++column) all += "|" + grid->text(row, column);
        all += platform::toText(grid->style(row, 2).colour);
      }
    }
  }
  for (const std::string& name : model::variableNames()) {
    all += "\n" + name + " " + model::variableText(program.state(), name).value_or("");
  }
  return all;
}

// Two programs that are worked by the same commands.
class Twins {
 public:
  // The files by their paths in the program's folder.
  Twins(const console::Options& options, const std::map<std::string, std::string>& files)
      : awake_(everyTick(options)), rested_(options) {
    for (support::SimulatedProgram* program : {&awake_, &rested_}) {
      for (const auto& [path, bytes] : files) program->memory.put("/d/" + path, bytes);
      EXPECT_TRUE(program->start());
    }
  }

  void run(const std::string& command) {
    const std::string expected = awake_.attempt(command) + awake_.run("journal") + stateOf(awake_);
    ASSERT_EQ(rested_.attempt(command) + rested_.run("journal") + stateOf(rested_), expected);
  }
  [[nodiscard]] support::SimulatedProgram& rested() { return rested_; }

 private:
  static console::Options everyTick(console::Options options) {
    options.everyTick = true;
    return options;
  }

  support::SimulatedProgram awake_;
  support::SimulatedProgram rested_;
};

// A rider who does something or other to whatever he can reach, now or in a while.
class Rider {
 public:
  explicit Rider(unsigned seed) : dice_(seed) {}

  std::string next(support::SimulatedProgram& program) {
    const int what = roll(0, 9);
    if (what == 9 && roll(0, 2) == 0) {
      const int event = roll(0, 2);
      if (event == 2) return "suspend 60";
      return event == 0 ? "volume " + std::to_string(roll(0, 100)) : "mute 1";
    }
    if (what < 3) return "advance " + seconds(what == 0 ? 9000 : 900);
    const std::string act = actOn(program);
    return what == 3 ? "at " + seconds(4000) + " " + act : act;
  }
  int roll(int from, int to) { return std::uniform_int_distribution<int>(from, to)(dice_); }

 private:
  std::string seconds(int most) { return std::to_string(roll(1, most) / 1000.0); }

  std::string actOn(support::SimulatedProgram& program) {
    std::vector<platform::Component*> open;
    for (platform::Form* form : program.screens().all()) {
      for (platform::Component* component : form->components()) {
        if (component->kind() != ControlKind::Timer &&
            console::reachOf(*component, nullptr) == console::Reach::Open) {
          open.push_back(component);
        }
      }
    }
    if (open.empty()) return "advance 1";
    platform::Component& chosen = *open[static_cast<std::size_t>(roll(0, static_cast<int>(open.size()) - 1))];
    const std::string name = chosen.form().name() + "." + chosen.name();
    if (auto* grid = dynamic_cast<platform::Grid*>(&chosen)) return atCell(*grid, name);
    if (auto* box = dynamic_cast<platform::ComboBox*>(&chosen); box != nullptr && !box->lines().empty()) {
      return "pick " + name + " \"" +
             box->lines()[static_cast<std::size_t>(roll(0, static_cast<int>(box->lines().size()) - 1))] +
             "\"";
    }
    if (auto* bar = dynamic_cast<platform::ScrollBar*>(&chosen)) {
      return "scroll " + name + " " +
             std::to_string(roll(std::min(bar->first, bar->last), std::max(bar->first, bar->last)));
    }
    if (chosen.kind() == ControlKind::CheckBox) return "tick " + name + " " + std::to_string(roll(0, 1));
    return (roll(0, 3) == 0 ? "hover " : "press ") + name;
  }

  std::string atCell(platform::Grid& grid, const std::string& name) {
    static constexpr std::array ways{"cell ", "cell ", "cell ", "hovercell ", "checkrow "};
    const std::string way = ways.at(static_cast<std::size_t>(roll(0, 4)));
    return way + name + " " + std::to_string(roll(1, std::max(1, grid.rowCount()))) + " " +
           std::to_string(way == "checkrow " ? roll(0, 1) : roll(1, std::max(1, grid.columnCount())));
  }

  std::mt19937 dice_;
};

// Where the random part begins: on the main screen, in the editor, in its calculator, in a ride over music.
const std::vector<std::string>& beginnings() {
  static const std::string list = support::composeTwoRows("Plat", "09", "Sprint", "07");
  // With figures of the rider's own, just saved.
  static const std::string calculator =
      "press CreerCycle.MyButton25\npick CreerCycle.Combo8 Astrand et Ryhming (1954)\n"
      "pick CreerCycle.Combo7 30\npick CreerCycle.Combo8 FCMaxi et FCRepos Perso\n"
      "pick CreerCycle.Combo12 60\npick CreerCycle.Combo8 FCMaxi et FCRepos Perso\n"
      "pick CreerCycle.Combo11 190\npick CreerCycle.Combo10 Masculin\npress CreerCycle.MyButton40\nadvance 1.2\n";
  static const std::string rideOverMusic =
      "pick MainForm.Combo5 2\npress CreerCycle.MyButton5\nadvance 0.3\npress MainForm.MyButton19\n"
      "advance 1.5\npress MainForm.MyButton3\nadvance 4";
  static const std::vector<std::string> all{"advance 0.5", list, list + calculator, list + rideOverMusic};
  return all;
}

TEST(EveryTick, ChangesNothingThatSomebodyCouldSee) {
  const char* wanted = std::getenv("VENTORIA_RANDOM_SESSIONS");
  const unsigned sessions = wanted != nullptr ? static_cast<unsigned>(std::atoi(wanted)) : 30;
  for (unsigned seed = 0; seed < sessions; ++seed) {
    Rider rider(seed);
    const std::string settings = rider.roll(0, 1) == 0 ? support::settingsOn : support::settingsOff;
    const SoundMode sound = rider.roll(0, 1) == 0 ? SoundMode::Timed : SoundMode::Instant;
    Twins twins(support::SimulatedProgram::at(std::chrono::hours(12), sound),
                {{"par.tq3", settings},
                 {"ambiances/a.mp3", std::string(60000, 'a')},
                 {"ambiances/b.mp3", std::string(60000, 'a')},
                 {"annonces/allez.wav", ""},
                 {"chronodat/Essai.tq2", support::session(2, 2).replace(71, 4, "Oui2")}});
    std::string done = "seed " + std::to_string(seed);
    const auto run = [&](const std::string& command) {
      done += "\n" + command;
      SCOPED_TRACE(done);
      twins.run(command);
    };
    std::istringstream beginning(beginnings().at(seed % beginnings().size()));
    for (std::string command; std::getline(beginning, command);) run(command);
    for (int i = 0; i < 60 && !HasFatalFailure(); ++i) run(rider.next(twins.rested()));
    if (HasFatalFailure()) return;
  }
}

namespace disk = std::filesystem;

std::string contents(const disk::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The words of a scenario's comment line, as "files:"; empty where it has none.
std::vector<std::string> wordsAt(const std::string& scenario, const std::string& what) {
  const std::size_t at = scenario.find("# " + what);
  if (at == std::string::npos) return {};
  std::istringstream line(
      scenario.substr(at + 2 + what.size(), scenario.find('\n', at) - at - 2 - what.size()));
  std::vector<std::string> words;
  for (std::string word; line >> std::quoted(word);) words.push_back(word);
  return words;
}

// The files that a scenario asks for, by their paths in the program's folder.
std::map<std::string, std::string> filesOf(const std::string& scenario) {
  std::map<std::string, std::string> files;
  for (const std::string& entry : wordsAt(scenario, "files:")) {
    const std::size_t sign = entry.find('=');
    const std::string source = sign == std::string::npos ? entry : entry.substr(sign + 1);
    files[entry.substr(0, sign)] = contents(disk::path(VENTORIA_SOURCE_DIR "/tests/data") / source);
  }
  return files;
}

TEST(EveryTick, ChangesNoScenario) {
  int ridden = 0;
  for (const auto& entry : disk::directory_iterator(VENTORIA_SOURCE_DIR "/tests/scenarios")) {
    if (entry.path().extension() != ".txt") continue;
    const std::string scenario = contents(entry.path());
    Twins twins(console::parseOptions(wordsAt(scenario, "options:")), filesOf(scenario));
    std::istringstream lines(scenario);
    for (std::string line; std::getline(lines, line) && !HasFatalFailure();) {
      SCOPED_TRACE(entry.path().string() + ": " + line);
      twins.run(line);
    }
    ++ridden;
  }
  EXPECT_GT(ridden, 20);
}

}  // namespace
