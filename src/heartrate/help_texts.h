// The help of the calculator: a text for each line, shown by the round button beside it.
#pragma once

#include "forms/creer_cycle.h"

namespace heartrate {

void attachHelp(forms::CreerCycle& form);
// The picture takes the place of the text again.
void hideHelp(forms::CreerCycle& form);

}  // namespace heartrate
