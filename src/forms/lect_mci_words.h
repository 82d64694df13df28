// What the player's state means, in words.
#pragma once

#include "forms/lect_mci.h"

namespace forms {

[[nodiscard]] inline bool musicLoaded(const LectMCI& player) {
  return !player.Text1.text.get().empty();
}

}  // namespace forms
