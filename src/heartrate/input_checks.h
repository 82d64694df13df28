// Which figures must be chosen before anything can be computed, and the message that asks for them.
#pragma once

#include "forms/creer_cycle.h"
#include "platform/dialogs.h"

namespace heartrate {

enum class Needed { Age, AgeAndRest, AllFigures };

[[nodiscard]] bool isBlank(const platform::ComboBox& box);
// Whether the box shows the saved figure, blanks at the ends aside.
[[nodiscard]] bool holds(const platform::ComboBox& box, const std::string& saved);
void showNeededFigures(platform::Dialogs& dialogs, Needed needed);
// Whether the calculator has the figures that the method shown needs. If not, tells the rider and opens the
// calculator.
[[nodiscard]] bool requireFigures(platform::Dialogs& dialogs, const forms::CreerCycle& form);

}  // namespace heartrate
