// The families of effort that the kinds of sequence fall into, and how high a sequence stands in a profile.
#pragma once

#include <string_view>

namespace model {

enum class EffortFamily { Warmth, Endurance, Strength, Speed, Relief, Recovery, Technique, Announcement };

// A kind that no family names counts as endurance.
[[nodiscard]] EffortFamily effortFamily(std::string_view kind);

// Height in percent of a profile's: the percentage of the heart-rate target where there is one ("132-75 %",
// "132- 75 %"), kept within 20 to 100, else the family's own.
[[nodiscard]] int effortHeight(EffortFamily family, std::string_view target);

}  // namespace model
