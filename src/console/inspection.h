// What the forms, the plan and the shared state hold, as text.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "forms/screens.h"
#include "model/training_model.h"
#include "platform/menu.h"

namespace console {

// The caption, text or number that a control shows.
[[nodiscard]] std::string shownBy(const platform::Component& component);
// The lines of a drop-down list or file list; a CommandError for any other control.
[[nodiscard]] const std::vector<std::string>& linesOf(const platform::Component& list);

void printRows(std::ostream& out, const platform::Component& gridOrList);
void printCellStyle(std::ostream& out, const platform::Grid& grid, int row, int column);
// Every control of the form that a rider can see, with what it shows.
void printVisible(std::ostream& out, const platform::Form& form, const platform::MenuItem* popUp);
void printPlan(std::ostream& out, const model::SharedState& state);
// A shared variable; a CommandError for an unknown name.
[[nodiscard]] std::string variable(const model::SharedState& state, const std::string& name);

// The forms that are on the screen, in order of showing.
class FormsOnScreen {
 public:
  explicit FormsOnScreen(forms::Screens& screens);
  [[nodiscard]] const std::vector<const platform::Form*>& inOrder() const { return shown_; }

 private:
  std::vector<const platform::Form*> shown_;
};

}  // namespace console
