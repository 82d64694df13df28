#include "console/test_commands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "console/names.h"
#include "rehearsal/escaping.h"
#include "rehearsal/simulated_clock.h"

namespace console {
namespace {

std::string valueAt(const PropertyAddress& address) {
  return address.property != nullptr ? address.property->asText() : shownBy(*address.component);
}

constexpr double mostSeconds = 1e9;

platform::Instant timeToCome(Arguments& arguments) {
  const double seconds = arguments.decimal("number of seconds");
  arguments.end();
  if (!(seconds >= 0) || seconds > mostSeconds) throw CommandError("time only goes forward");
  return platform::Instant{std::llround(seconds * 1000)};
}

}  // namespace

void TestCommands::enrol(CommandTable& table) {
  using Member = void (TestCommands::*)(Arguments&);
  static constexpr std::array<std::pair<const char*, Member>, 23> commands{{
      {"answer", &TestCommands::answer},
      {"call", &TestCommands::call},
      {"set", &TestCommands::set},
      {"advance", &TestCommands::advance},
      {"suspend", &TestCommands::suspend},
      {"wall", &TestCommands::wall},
      {"volume", &TestCommands::volume},
      {"mute", &TestCommands::mute},
      {"microphone", &TestCommands::microphone},
      {"get", &TestCommands::get},
      {"rows", &TestCommands::rows},
      {"cellcolour", &TestCommands::cellColour},
      {"lines", &TestCommands::lines},
      {"visible", &TestCommands::visible},
      {"forms", &TestCommands::forms},
      {"plan", &TestCommands::plan},
      {"var", &TestCommands::var},
      {"journal", &TestCommands::journal},
      {"expect", &TestCommands::expect},
      {"expectvar", &TestCommands::expectVar},
      {"clipboard", &TestCommands::clipboard},
      {"selection", &TestCommands::selection},
      {"echo", &TestCommands::echo},
  }};
  for (const auto& [name, member] : commands) {
    table[name] = [this, run = member](Arguments& arguments) { (this->*run)(arguments); };
  }
}

void TestCommands::answer(Arguments& arguments) {
  const std::string word = arguments.text();
  if (word.empty()) throw CommandError("missing answer");
  world_.dialogs.queue(word);
}

void TestCommands::call(Arguments& arguments) {
  const std::string address = arguments.word("FORM.CONTROL");
  arguments.end();
  platform::Component& found = findControl(world_.screens, address);
  if (auto* entry = dynamic_cast<platform::MenuItem*>(&found)) {
    world_.loop.guard([&] { entry->click(); });
  } else if (auto* control = dynamic_cast<platform::Control*>(&found)) {
    world_.loop.guard([&] { control->click(); });
  } else {
    throw CommandError(address + " has no click");
  }
}

void TestCommands::set(Arguments& arguments) {
  const std::string address = arguments.word("FORM.CONTROL.PROP");
  const PropertyAddress place = findProperty(world_.screens, address);
  if (place.property == nullptr) throw CommandError("which property of " + address + "?");
  const std::string text = arguments.text();
  std::string badValue;
  world_.loop.guard([&] {
    try {
      place.property->assignText(text);
    } catch (const std::invalid_argument& unreadable) {
      badValue = unreadable.what();
    }
  });
  if (!badValue.empty()) throw CommandError(badValue);
}

void TestCommands::advance(Arguments& arguments) {
  const platform::Instant time = timeToCome(arguments);
  world_.loop.runUntil(world_.loop.clock().now() + time);
}

void TestCommands::suspend(Arguments& arguments) {
  const platform::Instant length = timeToCome(arguments);
  simulatedClock().suspend(length);
}

void TestCommands::wall(Arguments& arguments) {
  const double seconds = arguments.decimal("number of seconds");
  arguments.end();
  if (!(std::abs(seconds) <= mostSeconds)) throw CommandError("no calendar reaches that far");
  simulatedClock().changeWall(platform::Instant{std::llround(seconds * 1000)});
}

void TestCommands::volume(Arguments& arguments) {
  const int percent = arguments.number("volume");
  arguments.end();
  if (percent < 0 || percent > 100) throw CommandError("a volume goes from 0 to 100");
  if (!world_.machine.volume) throw CommandError("there is no volume device");
  world_.machine.volume = percent;
  world_.machine.volumeChanges.wakeTimers();
}

void TestCommands::mute(Arguments& arguments) {
  const bool on = arguments.flag("0 or 1");
  arguments.end();
  if (!world_.machine.volume) throw CommandError("there is no volume device");
  world_.machine.muted = on;
  world_.machine.volumeChanges.wakeTimers();
}

void TestCommands::clipboard(Arguments& arguments) {
  world_.clipboard.fill(arguments.text());
}

void TestCommands::selection(Arguments& arguments) {
  const platform::Grid& grid = findGrid(world_.screens, arguments.word("FORM.CONTROL"));
  arguments.end();
  std::string rows;
  for (const int row : grid.selectedRows()) rows += (rows.empty() ? "" : ",") + std::to_string(row);
  out_ << rows << '\t' << grid.selectedRow() << '\n';
}

void TestCommands::microphone(Arguments& arguments) {
  const std::string state = arguments.word("on or off");
  arguments.end();
  if (state != "on" && state != "off") throw CommandError("\"" + state + "\" is neither on nor off");
  world_.machine.microphone = state == "on";
}

void TestCommands::get(Arguments& arguments) {
  const PropertyAddress address = findProperty(world_.screens, arguments.word("FORM.CONTROL.PROP"));
  arguments.end();
  out_ << rehearsal::escaped(valueAt(address)) << '\n';
}

void TestCommands::rows(Arguments& arguments) {
  const platform::Component& gridOrList = findControl(world_.screens, arguments.word("FORM.CONTROL"));
  arguments.end();
  printRows(out_, gridOrList);
}

void TestCommands::cellColour(Arguments& arguments) {
  const platform::Grid& grid = findGrid(world_.screens, arguments.word("FORM.CONTROL"));
  const int row = arguments.number("row");
  const int column = arguments.number("column");
  arguments.end();
  printCellStyle(out_, grid, row, column);
}

void TestCommands::lines(Arguments& arguments) {
  const platform::Component& list = findControl(world_.screens, arguments.word("FORM.CONTROL"));
  arguments.end();
  for (const std::string& line : linesOf(list)) out_ << rehearsal::escaped(line) << '\n';
}

void TestCommands::visible(Arguments& arguments) {
  const platform::Form& form = findForm(world_.screens, arguments.word("FORM"));
  arguments.end();
  if (!world_.loop.quitting()) printVisible(out_, form, rider_.popUp());
}

void TestCommands::forms(Arguments& arguments) {
  arguments.end();
  if (world_.loop.quitting()) return;  // the program has ended, and its windows with it
  for (const platform::Form* form : onScreen_.inOrder()) out_ << form->name() << '\n';
}

void TestCommands::plan(Arguments& arguments) {
  arguments.end();
  printPlan(out_, world_.state);
}

void TestCommands::var(Arguments& arguments) {
  const std::string name = arguments.word("name");
  arguments.end();
  out_ << rehearsal::escaped(variable(world_.state, name)) << '\n';
}

void TestCommands::journal(Arguments& arguments) {
  const std::string kind = arguments.empty() ? std::string() : arguments.word("kind");
  arguments.end();
  const std::vector<std::string>& kinds = rehearsal::Journal::kinds();
  if (!kind.empty() && std::find(kinds.begin(), kinds.end(), kind) == kinds.end()) {
    throw CommandError("no kind " + kind + platform::nearNames(kind, kinds));
  }
  world_.journal.print(out_, kind);
}

rehearsal::SimulatedClock& TestCommands::simulatedClock() {
  auto* clock = dynamic_cast<rehearsal::SimulatedClock*>(&world_.loop.clock());
  if (clock == nullptr) throw CommandError("the machine's own clock goes as it goes");
  return *clock;
}

void TestCommands::compare(const std::string& what, const std::string& is, const std::string& wanted) {
  if (is == wanted) return;
  failed_ = true;
  out_ << "FAILED: " << what << " is \"" << rehearsal::escaped(is) << "\", not \""
       << rehearsal::escaped(wanted) << "\"\n";
}

void TestCommands::expect(Arguments& arguments) {
  const std::string address = arguments.word("FORM.CONTROL.PROP");
  const std::string is = valueAt(findProperty(world_.screens, address));
  compare(address, is, arguments.text());
}

void TestCommands::expectVar(Arguments& arguments) {
  const std::string name = arguments.word("name");
  const std::string is = variable(world_.state, name);
  compare(name, is, arguments.text());
}

void TestCommands::echo(Arguments& arguments) {
  out_ << rehearsal::escaped(arguments.text()) << '\n';
}

}  // namespace console
