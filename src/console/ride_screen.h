// What the person at the terminal sees of a ride: a few lines that are redrawn in place below what is said.
// With no terminal, only what is said and a line for each sequence.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "console/terminal.h"
#include "forms/main_form.h"
#include "model/training_model.h"

namespace console {

class RideScreen {
 public:
  RideScreen(const Terminal& terminal, std::ostream& out) : terminal_(terminal), out_(out) {}

  // A line that stays, above the redrawn ones.
  void printLine(const std::string& line);
  // Draws what has changed.
  void show(const forms::MainForm& form, const model::SharedState& state);

 private:
  void erase();
  void draw();

  const Terminal& terminal_;
  std::ostream& out_;
  std::vector<std::string> lines_;
  std::size_t drawn_ = 0;  // how many lines stand on the screen
  std::string sequence_;
};

}  // namespace console
