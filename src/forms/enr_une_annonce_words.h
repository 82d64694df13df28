// What the state of the announcements' page and the music library means, in words.
#pragma once

#include "forms/enr_une_annonce.h"

namespace forms {

inline constexpr const char* noMusicChosen = "Actuellement Aucune Ambiance Musicale Choisie";

// Whether a piece of the library is in hand: the page shows its name.
[[nodiscard]] inline bool musicChosen(const EnrUneAnnonce& library) {
  return library.Label6.caption != noMusicChosen;
}

}  // namespace forms
