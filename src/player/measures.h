// Lengths of the hidden player's form, in twips.
#pragma once

namespace player {

inline constexpr int twipsPerPixel = 15;
inline constexpr int boxWidth = 5000;

}  // namespace player
