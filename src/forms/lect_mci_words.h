// What the player's state means, in words.
#pragma once

#include "forms/lect_mci.h"

namespace forms {

[[nodiscard]] inline bool musicLoaded(const LectMCI& player) {
  return !player.Text1.text.get().empty();
}

[[nodiscard]] inline bool soundOff(const LectMCI& player) {
  return player.Check1.value == 1;
}

// A picture fills its box, as it is or in its own proportion.
[[nodiscard]] inline bool pictureResized(const LectMCI& player) {
  return player.Check3.value == 1;
}
[[nodiscard]] inline bool proportionKept(const LectMCI& player) {
  return player.Check4.value == 1;
}

}  // namespace forms
