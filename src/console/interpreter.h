// Reads commands, a line each, and carries them out.
#pragma once

#include <istream>
#include <map>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "console/command_table.h"
#include "console/rider_commands.h"
#include "console/test_commands.h"

namespace console {

class Interpreter {
 public:
  // To be made before the program starts, so that it sees every form that is shown.
  Interpreter(const TestCommands::World& world, RiderHands& hands, std::ostream& out);

  ~Interpreter();
  Interpreter(const Interpreter&) = delete;
  Interpreter& operator=(const Interpreter&) = delete;

  // Adds a command of the front's own.
  void add(const std::string& name, std::function<void(Arguments&)> command) {
    commands_[name] = std::move(command);
  }
  // For the front to call when a pop-up menu has opened.
  void menuOpened(const platform::MenuItem& root) { rider_.menuOpened(root); }

  // Until `quit` or the end of the input. The exit status: 1 if anything failed or was in error, else 0.
  int run(std::istream& in);
  void execute(std::string_view line);
  [[nodiscard]] int status() const { return erred_ || tests_.failed() ? 1 : 0; }

 private:
  void postpone(Arguments& arguments);
  void carryOutDue();
  [[nodiscard]] std::optional<platform::Instant> nextPending() const;
  void perform(std::string_view line);
  // Prints the output of a command, the stamp before each line.
  void deliver(const std::string& stamp);
  void printError(const std::string& text);

  platform::EventLoop& loop_;
  std::ostream& out_;
  std::ostringstream said_;  // what the command under way has printed
  std::multimap<platform::Instant, std::string> pending_;
  RiderCommands rider_;
  TestCommands tests_;
  CommandTable commands_;
  bool erred_ = false;
  bool quit_ = false;
};

// Tells the interpreter of the pop-up menus where no window shows them.
void watchPopUps(forms::Screens& screens, Interpreter& interpreter);

}  // namespace console
