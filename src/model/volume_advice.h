// How well a volume suits a ride, and what is said about it.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace model {

enum class Loudness : std::uint8_t { TooLow, Low, Right, Loud };

struct VolumeAdvice {
  int from;  // %
  Loudness loudness;
  const char* text;
};

// Each row is valid up to where the next one begins.
inline constexpr std::array<VolumeAdvice, 4> volumeAdvices{{
    {0, Loudness::TooLow, "Le Volume de votre (Son) semble insuffisant..."},
    {50, Loudness::Low, "Le Volume de votre (Son) semble un peu faible..."},
    {75, Loudness::Right, "Le Volume de votre (Son) semble satisfaisant..."},
    {86, Loudness::Loud, "Le Volume de votre (Son) semble un peu fort..."},
}};

// `percent` is 0 or more.
[[nodiscard]] inline const VolumeAdvice& adviceFor(int percent) {
  return *std::find_if(volumeAdvices.rbegin(), volumeAdvices.rend(),
                       [&](const VolumeAdvice& row) { return percent >= row.from; });
}

}  // namespace model
