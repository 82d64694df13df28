#include "model/effort_family.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace model {
namespace {

using enum EffortFamily;

struct KindFamily {
  std::string_view kind;
  EffortFamily family;
};

// "Force 1" to "Force 8" are found by their first word, and a session file keeps "Augmentation Progressive"
// cut to fifteen characters.
constexpr std::array<KindFamily, 29> kinds{{
    {"Echauffement", Warmth},
    {"Retour au Calme", Warmth},
    {"Plat", Endurance},
    {"Normal", Endurance},
    {"Fond", Endurance},
    {"Assis", Endurance},
    {"Force", Strength},
    {"HyperForce", Strength},
    {"Musculation", Strength},
    {"Puissance", Strength},
    {"Sprint", Speed},
    {"Vélocité", Speed},
    {"Accélération", Speed},
    {"Augmentation Progressive", Speed},
    {"Augmentation Pr", Speed},
    {"Montée", Relief},
    {"Pente", Relief},
    {"Faux Plat", Relief},
    {"Petites Bosses", Relief},
    {"Danseuse", Relief},
    {"Récupération", Recovery},
    {"Repos", Recovery},
    {"Déblocage", Recovery},
    {"Décontraction", Recovery},
    {"Décrassage", Recovery},
    {"Jambe Droite", Technique},
    {"Jambe Gauche", Technique},
    {"Pédalage Souple", Technique},
    {"Annonce Vocale", Announcement},
}};

constexpr std::array<int, 8> ownHeights{35, 55, 75, 90, 75, 30, 45, 0};

// The percentage of a target such as "132-75 %"; 0 where there is none.
int percentOf(std::string_view target) {
  const std::size_t dash = target.rfind('-');
  if (dash == std::string_view::npos || !target.ends_with('%')) return 0;
  target.remove_prefix(dash + 1);
  while (target.starts_with(' ')) target.remove_prefix(1);
  int percent = 0;
  std::from_chars(target.data(), target.data() + target.size(), percent);
  return percent;
}

}  // namespace

EffortFamily effortFamily(std::string_view kind) {
  if (kind.starts_with("Force ")) return Strength;
  const auto* found =
      std::find_if(kinds.begin(), kinds.end(), [&](const KindFamily& row) { return row.kind == kind; });
  return found == kinds.end() ? Endurance : found->family;
}

int effortHeight(EffortFamily family, std::string_view target) {
  const int percent = percentOf(target);
  return percent > 0 ? std::clamp(percent, 20, 100) : ownHeights.at(static_cast<std::size_t>(family));
}

}  // namespace model
