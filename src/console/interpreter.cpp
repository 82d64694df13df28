#include "console/interpreter.h"

#include <exception>
#include <vector>

#include "platform/form.h"

namespace console {

Interpreter::Interpreter(const TestCommands::World& world, RiderHands& hands, std::ostream& out)
    : out_(out), rider_(world.screens, world.loop, hands), tests_(world, rider_, out) {
  rider_.enrol(commands_);
  tests_.enrol(commands_);
  add("quit", [this](Arguments& arguments) {
    arguments.end();
    quit_ = true;
  });
  world.dialogs.onMisfit([this](const std::string& text) { printError(text); });
}

void Interpreter::printError(const std::string& text) {
  erred_ = true;
  out_ << "error: " << text << '\n';
}

void Interpreter::execute(std::string_view line) {
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
    out_ << "refused: " << refusal.what() << '\n';
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
