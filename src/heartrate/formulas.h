// The arithmetic of heart rates: maximal rate, bands and targets, by one of six methods.
//
//   0  220 − age: the oldest family, named after Astrand & Ryhming 1954
//   1  205.8 − 0.685 × age: Inbar et al. 1994
//   2  208.754 − 0.734 × age: Robergs & Landwehr 2002
//   3  207 − 0.7 × age: Gellish et al. 2007
//   4  the reserve above the resting rate: Karvonen et al. 1957
//   5  the rider's own maximal and resting rates
//
// Rates are beats a minute, percentages whole numbers of percent. The operands come as the texts that hold
// them, because how strictly one is read depends on the method: a platform::Fault where a strict one is no
// number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/heart_zone.h"

namespace heartrate {

inline constexpr int methodCount = 6;
inline constexpr int karvonen = 4;
inline constexpr int ownFigures = 5;

[[nodiscard]] constexpr bool byAge(int methode) {
  return methode >= 0 && methode < karvonen;
}
// These two know the resting rate, so that their bands are shares of the reserve.
[[nodiscard]] constexpr bool byReserve(int methode) {
  return methode == karvonen || methode == ownFigures;
}

// The text of the maximal rate; none for the rider's own figures, where he has entered it himself.
[[nodiscard]] std::optional<std::string> fcMaxMethode(int methode, std::string_view age,
                                                      std::string_view fcRepos, std::string_view percent);

struct Band {
  int lower;  // %
  int upper;  // %
};
[[nodiscard]] model::HeartZone zoneOf(int methode, double fcMax, double fcRepos, Band band);
// "lo à hi".
[[nodiscard]] std::string zoneText(const model::HeartZone& zone);
[[nodiscard]] std::string reserveText(double fcMax, double fcRepos);
[[nodiscard]] std::string workRateText(int methode, double fcMax, double fcRepos, double percent);

// Who asks for a target. The two read different operands and compute in a different order; keep it so,
// because the targets in riders' sessions depend on it.
enum class TargetWriter { CellPick, ColumnRewrite };

struct TargetOperands {
  std::string_view age;      // on the screen
  std::string_view fcRepos;  // on the screen
  std::string_view persoAge;
  std::string_view persoFCMax;
  std::string_view persoFCRepos;
};

// The target of one sequence, not rounded; none where `methode` is none of the six.
[[nodiscard]] std::optional<double> cibleFC(TargetWriter writer, int methode, double percent,
                                            const TargetOperands& operands);

}  // namespace heartrate
