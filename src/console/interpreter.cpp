#include "console/interpreter.h"

#include <cmath>
#include <exception>
#include <vector>

#include "platform/form.h"
#include "rehearsal/journal.h"

namespace console {

Interpreter::Interpreter(const TestCommands::World& world, RiderHands& hands, std::ostream& out)
    : loop_(world.loop), out_(out), rider_(world.screens, world.loop, hands), tests_(world, rider_, said_) {
  rider_.enrol(commands_);
  tests_.enrol(commands_);
  add("at", [this](Arguments& arguments) { postpone(arguments); });
  loop_.onInput([this] { carryOutDue(); }, [this] { return nextPending(); });
  add("quit", [this](Arguments& arguments) {
    arguments.end();
    quit_ = true;
  });
  world.dialogs.onMisfit([this](const std::string& text) { printError(text); });
}

Interpreter::~Interpreter() {
  loop_.onInput({});
}

void Interpreter::printError(const std::string& text) {
  erred_ = true;
  said_ << "error: " << text << '\n';
}

void Interpreter::deliver(const std::string& stamp) {
  std::istringstream lines(said_.str());
  said_.str({});
  for (std::string line; std::getline(lines, line);) out_ << stamp << line << '\n';
}

void Interpreter::postpone(Arguments& arguments) {
  const double seconds = arguments.decimal("number of seconds");
  if (!(seconds >= 0) || seconds > 1e9) throw CommandError("time only goes forward");
  const std::string_view line = arguments.rest();
  Arguments postponed(line);
  const std::string name = postponed.word("command");
  // A rider cannot let time pass, and inside a wait `advance` would never come to its end.
  for (const char* unfit : {"at", "advance", "quit"}) {
    if (name == unfit) throw CommandError(name + " cannot be postponed");
  }
  pending_.emplace(loop_.clock().now() + platform::Instant{std::llround(seconds * 1000)}, line);
}

std::optional<platform::Instant> Interpreter::nextPending() const {
  if (pending_.empty()) return std::nullopt;
  return pending_.begin()->first;
}

void Interpreter::carryOutDue() {
  while (!pending_.empty() && pending_.begin()->first <= loop_.clock().now()) {
    const std::string line = std::move(pending_.extract(pending_.begin()).mapped());
    // Taken before the command runs, which may itself wait.
    const std::string stamp = rehearsal::secondsText(loop_.clock().now()) + "\t";
    perform(line);
    deliver(stamp);
  }
}

void Interpreter::execute(std::string_view line) {
  perform(line);
  deliver({});
}

void Interpreter::perform(std::string_view line) {
  Arguments arguments(line);
  if (arguments.empty()) return;
  const std::string name = arguments.word("command");
  if (name.starts_with('#')) return;
  const auto found = commands_.find(name);
  if (found == commands_.end()) {
    std::vector<std::string> names;
    for (const auto& [known, command] : commands_) names.push_back(known);
    printError("no command " + name + platform::nearNames(name, names));
    return;
  }
  try {
    found->second(arguments);
  } catch (const Refusal& refusal) {
    said_ << "refused: " << refusal.what() << '\n';
  } catch (const std::exception& fault) {
    printError(fault.what());
  }
}

int Interpreter::run(std::istream& in) {
  std::string line;
  while (!quit_ && std::getline(in, line)) {
    execute(line);
    out_.flush();
  }
  return status();
}

void watchPopUps(forms::Screens& screens, Interpreter& interpreter) {
  for (platform::Form* form : screens.all()) {
    for (platform::Component* component : form->components()) {
      auto* menu = dynamic_cast<platform::MenuItem*>(component);
      if (menu == nullptr) continue;
      menu->popUp.handle([&interpreter, menu] { interpreter.menuOpened(menu->root()); });
    }
  }
}

}  // namespace console
