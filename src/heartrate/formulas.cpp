#include "heartrate/formulas.h"

#include <array>
#include <cmath>

#include "model/numbers.h"

namespace heartrate {
namespace {

using model::formatBpm;
using model::lenientNumber;
using model::plainNumber;
using model::strictNumber;

constexpr double ageCeiling = 220;

struct AgeFormula {
  double atBirth;
  double perYear;
  [[nodiscard]] double fcMax(double age) const { return atBirth - age * perYear; }
};
constexpr std::array<AgeFormula, karvonen> ageFormulas{
    {{ageCeiling, 1}, {205.8, 0.685}, {208.754, 0.734}, {207, 0.7}}};

}  // namespace

std::optional<std::string> fcMaxMethode(int methode, std::string_view age, std::string_view fcRepos,
                                        std::string_view percent) {
  if (methode == 0) return plainNumber(ageCeiling - strictNumber(age));
  if (byAge(methode)) {
    return formatBpm(ageFormulas.at(static_cast<std::size_t>(methode)).fcMax(lenientNumber(age)));
  }
  if (methode != karvonen) return std::nullopt;
  return formatBpm((ageCeiling - strictNumber(age)) * strictNumber(percent) / 100 + strictNumber(fcRepos));
}

model::HeartZone zoneOf(int methode, double fcMax, double fcRepos, Band band) {
  const auto rate = [&](int percent) {
    const double value =
        byReserve(methode) ? (fcMax - fcRepos) * percent / 100 + fcRepos : fcMax * percent / 100;
    return std::round(value);
  };
  return {rate(band.lower), rate(band.upper)};
}

std::string zoneText(const model::HeartZone& zone) {
  return formatBpm(zone.from) + " à " + formatBpm(zone.to);
}

std::string reserveText(double fcMax, double fcRepos) {
  return plainNumber(fcMax - fcRepos);
}

std::string workRateText(int methode, double fcMax, double fcRepos, double percent) {
  return formatBpm(byReserve(methode) ? fcMax * percent / 100 : (fcMax - fcRepos) * percent / 100 + fcRepos);
}

std::optional<double> cibleFC(TargetWriter writer, int methode, double percent,
                              const TargetOperands& operands) {
  const bool pick = writer == TargetWriter::CellPick;
  if (byAge(methode)) {
    const std::string_view age = pick && methode == 0 ? operands.age : operands.persoAge;
    return percent * ageFormulas.at(static_cast<std::size_t>(methode)).fcMax(strictNumber(age)) / 100;
  }
  if (!byReserve(methode)) return std::nullopt;
  const bool own = methode == ownFigures;
  const double rest = strictNumber(own ? operands.persoFCRepos : operands.fcRepos);
  // The age plays no part in the grid.
  const double reserve = (own ? strictNumber(operands.persoFCMax) : ageCeiling) - rest;
  return pick ? percent / 100 * reserve + rest : percent * reserve / 100 + rest;
}

}  // namespace heartrate
