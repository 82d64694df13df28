// The commands for tests alone: they read everything, write to controls from outside, and let time pass.
#pragma once

#include <ostream>

#include "console/command_table.h"
#include "console/inspection.h"
#include "console/rider_commands.h"
#include "rehearsal/journal.h"
#include "rehearsal/scripted_dialogs.h"
#include "rehearsal/simulated_clipboard.h"
#include "rehearsal/simulated_clock.h"
#include "rehearsal/simulated_machine.h"

namespace console {

class TestCommands {
 public:
  struct World {
    forms::Screens& screens;
    const model::SharedState& state;
    platform::EventLoop& loop;
    rehearsal::Journal& journal;
    rehearsal::ScriptedDialogs& dialogs;
    rehearsal::SimulatedMachine& machine;
    rehearsal::SimulatedClipboard& clipboard;
  };

  TestCommands(const World& world, const RiderCommands& rider, std::ostream& out)
      : world_(world), rider_(rider), out_(out), onScreen_(world.screens) {}

  void enrol(CommandTable& table);
  // Whether an `expect` has failed.
  [[nodiscard]] bool failed() const { return failed_; }

 private:
  void answer(Arguments& arguments);
  void call(Arguments& arguments);
  void set(Arguments& arguments);
  void advance(Arguments& arguments);
  void suspend(Arguments& arguments);
  void wall(Arguments& arguments);
  void volume(Arguments& arguments);
  void mute(Arguments& arguments);
  void microphone(Arguments& arguments);
  void get(Arguments& arguments);
  void rows(Arguments& arguments);
  void cellColour(Arguments& arguments);
  void lines(Arguments& arguments);
  void visible(Arguments& arguments);
  void forms(Arguments& arguments);
  void plan(Arguments& arguments);
  void var(Arguments& arguments);
  void journal(Arguments& arguments);
  void expect(Arguments& arguments);
  void expectVar(Arguments& arguments);
  void clipboard(Arguments& arguments);
  void selection(Arguments& arguments);
  void echo(Arguments& arguments);

  [[nodiscard]] rehearsal::SimulatedClock& simulatedClock();
  void compare(const std::string& what, const std::string& is, const std::string& wanted);

  World world_;
  const RiderCommands& rider_;
  std::ostream& out_;
  FormsOnScreen onScreen_;
  bool failed_ = false;
};

}  // namespace console
