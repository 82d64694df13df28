// What must be chosen before anything can be computed, and how the rider is told.
#pragma once

#include "forms/creer_cycle.h"
#include "platform/dialogs.h"

namespace heartrate {

enum class Needed { Age, AgeAndRest, AllFigures };

[[nodiscard]] bool isBlank(const platform::ComboBox& box);
// The same figure, blanks at the ends aside.
[[nodiscard]] bool holds(const platform::ComboBox& box, const std::string& saved);
void showNeededFigures(platform::Dialogs& dialogs, Needed needed);
// Whether the calculator has what the method it shows needs. If not, says so and opens the calculator.
[[nodiscard]] bool requireFigures(platform::Dialogs& dialogs, const forms::CreerCycle& form);

}  // namespace heartrate
