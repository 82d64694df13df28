// Turns the bytes of the input into a rider's actions at the editor, four bytes each: clicks, picks, typed
// values, commands, waits, saves and loads. Whatever he does the list keeps its shape, and every fault is one
// that he is told.
#include <algorithm>
#include <array>
#include <functional>
#include <iostream>

#include "fuzz/check.h"
#include "model/grid_rows.h"
#include "model/training_model.h"
#include "model/windows1252.h"
#include "platform/text.h"
#include "support/session_bytes.h"
#include "support/simulated_program.h"

namespace {

namespace column = model::column;

constexpr std::array typed{"97",
                           "",
                           " ",
                           "-----",
                           "séance",
                           "Annonce Vocale",
                           "00:00:99",
                           "Oui",
                           "3",
                           "x",
                           "une valeur bien plus longue que la place qu'elle trouve"};
constexpr std::array buttons{"mnsupprim", "mnsupprim", "mnAjouterLigne", "mnUndo",
                             "mnUndo",    "mnRedo",    "MyButton1",      "MyButton1",
                             "MyButton7", "MyButton3", "MyButton2",      "Command4"};
constexpr std::array waits{"0.01", "0.2", "1", "3"};

class Rider {
 public:
  Rider() {
    program_.memory.put("/d/annonces/allez.wav", "");
    program_.memory.put(path(0), repeatedSession());
    check(program_.start(), "the program starts");
    run("press MainForm.mnCreat");
  }

  void act(std::uint8_t what, std::uint8_t a, std::uint8_t b, std::uint8_t c) {
    const std::function<void()> acts[]{
        [&] { click(a, b, c % 8 == 0); },
        [&] { pick("Combo1", a + 256 * b); },
        [&] {
          pick(std::array{"Combo2", "Combo3", "Combo4"}.at(a % 3), b);
        },
        [&] { run("type CreerCycle.Combo1 \"" + std::string(typed.at(a % typed.size())) + "\""); },
        [&] { run("advance " + std::string(waits.at(a % waits.size()))); },
        [&] { a % 2 == 0 ? save(b % 3) : load(b % 3, c % 2 == 0); },
        [&] { handOver(a % 2 == 0); },
        [&] { finishLastRow(a, b, c); },
        [&] { press(buttons.at(a % buttons.size())); }};
    acts[std::array{0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 3, 4, 5, 6, 7, 8}.at(what % 16)]();
    checkList();
  }

 private:
  platform::Grid& list() { return program_.list(); }
  std::string run(const std::string& commands) {
    done_ += commands + "\n";
    return program_.run(commands);
  }
  // On a failure, prints the commands that led to it.
  void check(bool holds, const std::string& promise) const {
    if (!holds) fuzz::check(false, promise + " after\n" + done_);
  }
  void press(const std::string& control) { run("press CreerCycle." + control); }

  void click(int row, int col, bool right) {
    const int last = list().rowCount();
    run("cell CreerCycle.ListView1 " + std::to_string(row % last + 1) + " " +
        std::to_string(col % model::columnCount + 1) + (right ? " right" : ""));
  }

  void pick(const std::string& name, int line) {
    const auto& box = dynamic_cast<platform::ComboBox&>(program_.screens().editor.find(name));
    if (box.lines().empty()) return;
    const std::string& text = box.lines().at(static_cast<std::size_t>(line) % box.lines().size());
    run("pick CreerCycle." + name + " \"" + text + "\"");
  }

  // A kind and a duration, or an announcement; then perhaps another row.
  void finishLastRow(int kind, int duration, int more) {
    const int last = list().rowCount();
    if (last < 2) return;
    click(last - 1, column::sequence - 1, false);
    pick("Combo1", kind);
    const bool spoken = list().text(last, column::sequence) == model::vocalAnnouncement;
    click(last - 1, (spoken ? column::announcement : column::duration) - 1, false);
    pick(spoken ? "Combo1" : "Combo4", duration);
    run("advance 0.2");
    if (more % 4 != 0) press("MyButton1");
  }

  // Two sequences ridden twice.
  static std::string repeatedSession() { return support::session(2, 2).replace(71, 4, "Oui2"); }
  static std::string path(int number) { return "/d/chronodat/Séance " + std::to_string(number) + ".tq2"; }

  void save(int number) {
    run("advance 1");
    if (!program_.screens().editor.Command6.visible || model::lastRowUnfinished(list())) return;
    std::vector<std::string> saved;
    for (int row = 2; row <= list().rowCount(); ++row) {
      if (model::isSequence(list(), row)) saved.push_back(storedTexts(row));
    }
    const bool replaces = program_.memory.exists(path(number));
    run("answer " + path(number) + (replaces ? "\nanswer ok" : "") + "\npress CreerCycle.Command6");
    check(list().rowCount() == 2, "a save begins the list anew");
    run("advance 1");
    loadNow(number);
    // The first pass, behind the first row, in the order in which it was saved.
    for (std::size_t i = 0; i < saved.size(); ++i) {
      const int row = static_cast<int>(i) + 2;
      check(storedTexts(row) == saved.at(i), "what was saved is loaded: " + saved.at(i));
    }
  }

  // The seven texts of a row as the file keeps them.
  std::string storedTexts(int row) {
    const std::pair<int, std::size_t> fields[] = {{column::sequence, 15},  {column::cadence, 15},
                                                  {column::chainring, 13}, {column::gear, 13},
                                                  {column::duration, 8},   {column::heartRate, 11}};
    std::string texts;
    for (const auto& [col, width] : fields) {
      texts += platform::trim(platform::left(list().text(row, col), width)) + "|";
    }
    const bool spoken = texts.starts_with("Annonce Vocale|");
    return texts + (spoken ? platform::trim(platform::left(list().text(row, column::announcement), 50)) : "");
  }

  void loadNow(int number) {
    forms::CreerCycle& form = program_.screens().editor;
    if (form.MyButton4.caption != "Ajouter une Séance") press("MyButton3");
    run("answer " + path(number) + "\npress CreerCycle.MyButton4");
  }

  void load(int number, bool byList) {
    forms::CreerCycle& form = program_.screens().editor;
    const bool asks = form.MyButton4.caption == "Ajouter une Séance";
    if (list().rowCount() > 300 || !program_.memory.exists(path(number))) return;
    if (asks) run("answer " + path(number));
    press(byList ? "Command5" : "MyButton4");
  }

  // To the main screen and back, by the start or by the way that keeps everything.
  void handOver(bool start) {
    press(start ? "MyButton5" : "MyButton6");
    const model::SharedState& state = program_.state();
    for (std::size_t i = 1; i <= static_cast<std::size_t>(state.nbSequences); ++i) {
      check(model::parseSeconds(state.plan.rows.at(i).planDuree).has_value(), "a plan of durations");
    }
    run("advance 0.2\npress MainForm.MyButton5");
  }

  void checkList() {
    check(program_.screens().editor.visible, "the editor is on the screen");
    check(list().columnCount() == model::columnCount, "thirteen columns");
    check(list().rowCount() >= 1, "a first row");
    for (int row = 1; row <= list().rowCount(); ++row) {
      const bool first = list().text(row, column::sessionName) == "Nouvelle Séance";
      check(first == (row == 1), "exactly one first row, at the top");
      check(list().text(row, column::deleteMark) == (first ? "--" : "x"), "the delete cells");
    }
    check(model::parseSeconds(list().text(1, column::duration)).has_value(), "the total is a time");
    const std::string faults = program_.run("journal fault");
    check(faults.empty(), "no fault: " + faults);
  }

  support::SimulatedProgram program_;
  std::string done_;
};

// A run is as many actions as its input has room for, so the runs that a fuzzer counts say little.
struct Tally {
  ~Tally() { std::cerr << "actions: " << actions << '\n'; }
  long actions = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Tally tally;
  Rider rider;
  for (std::size_t at = 0; at + 4 <= size; at += 4, ++tally.actions)
    rider.act(data[at], data[at + 1], data[at + 2], data[at + 3]);
  return 0;
}
