// The composition root: makes the forms, the shared state, the loop and the logic, and ties them together.
// A front constructs one Program over its devices, watches the forms, and calls start().
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "context/rehearsals.h"
#include "forms/screens.h"
#include "model/training_model.h"
#include "platform/event_loop.h"
#include "platform/outside.h"

namespace app {

struct Setup {
  std::string folder;   // the program's folder; everything that the program keeps lies in it
  std::string version;  // shown in the main menu
  std::function<void(const std::string&)> faultObserver;  // called with each fault before the rider is told
  std::string documentsFolder = {};                       // where the rider picks music to import
  context::Rehearsals* rehearsals = nullptr;  // none: nothing is told of how long a ride really takes
  platform::EventLoop::Ticks ticks = platform::EventLoop::Ticks::RestWhereIdle;
};

class Program {
 public:
  Program(const platform::Outside& outside, const Setup& setup);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The program's start, as the rider sees it: folders, settings, first prompt, the idle screen.
  // A folder that cannot be made is told to the rider and gives false: the front ends with status 1.
  [[nodiscard]] bool start();
  // Hands a ride over as the editor does, but without its list.
  void handOver(const model::RideOrder& order);
  // What every end of the program has to do once, however it came: keeps a list that is not saved.
  void end();
  // An end that the rider has not asked for: his session, or the machine, is being closed. Waits and sounds
  // return at once, nothing is asked, and the desktop gets back what a ride had taken.
  void endAtOnce();

  [[nodiscard]] forms::Screens& screens() { return screens_; }
  [[nodiscard]] platform::EventLoop& loop() { return loop_; }
  [[nodiscard]] model::SharedState& state() { return state_; }

 private:
  struct Logic;
  std::vector<std::string> listed(const std::string& folder);

  platform::Outside outside_;
  platform::EventLoop loop_;
  forms::Screens screens_;
  model::SharedState state_;
  std::set<std::pair<std::uint64_t, std::string>> unlisted_;  // folders by the action that was told of them
  std::unique_ptr<Logic> logic_;
};

}  // namespace app
