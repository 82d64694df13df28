#include "model/vocabulary.h"

#include "platform/text.h"

namespace model {
namespace {

std::vector<std::string> joined(std::vector<std::string> head, const std::vector<std::string>& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}

std::vector<std::string> makeCadences() {
  std::vector<std::string> list{" "};
  for (int n = 10; n <= 140; n += 5) {
    const std::string base = std::to_string(n);
    list.push_back(base);
    list.push_back(base + " à " + std::to_string(n + 5));
    list.push_back(base + " à " + std::to_string(n + 10));
  }
  list.emplace_back("150");
  return list;
}

std::vector<std::string> makePercents() {
  std::vector<std::string> list{" "};
  for (const std::string& percent : numbers(50, 100, 5)) list.push_back(percent + " %");
  return list;
}

}  // namespace

const std::vector<std::string>& sequenceKinds() {
  static const std::vector<std::string> list{
      " ",           "Accélération", "Annonce Vocale",  "Assis",        "Augmentation Progressive",
      "Danseuse",    "Déblocage",    "Décontraction",   "Décrassage",   "Echauffement",
      "Faux Plat",   "Fond",         "Force",           "Force 1",      "Force 2",
      "Force 3",     "Force 4",      "Force 5",         "Force 6",      "Force 7",
      "Force 8",     "HyperForce",   "Jambe Droite",    "Jambe Gauche", "Montée",
      "Musculation", "Normal",       "Pédalage Souple", "Pente",        "Petites Bosses",
      "Plat",        "Puissance",    "Récupération",    "Repos",        "Retour au Calme",
      "Sprint",      "Vélocité"};
  return list;
}

const std::vector<std::string>& cadences() {
  static const std::vector<std::string> list = makeCadences();
  return list;
}

const std::vector<std::string>& chainrings() {
  static const std::vector<std::string> list =
      joined({" ", "Petit Plateau", "Grand Plateau"}, numbers(24, 56));
  return list;
}

const std::vector<std::string>& gears() {
  static const std::vector<std::string> list =
      joined({" ", "Petit Braquet", "Grand Braquet"}, numbers(10, 40));
  return list;
}

const std::vector<std::string>& repeatSwitch() {
  static const std::vector<std::string> list{"Oui", "Non"};
  return list;
}

const std::vector<std::string>& repeatCounts() {
  static const std::vector<std::string> list = joined({"0"}, numbers(2, 20));
  return list;
}

const std::vector<std::string>& targetPercents() {
  static const std::vector<std::string> list = makePercents();
  return list;
}

std::vector<std::string> twoDigits(int last) {
  std::vector<std::string> list;
  for (int n = 0; n <= last; ++n) list.push_back(platform::zeroPadded(n, 2));
  return list;
}

std::vector<std::string> numbers(int first, int last, int step) {
  std::vector<std::string> list;
  for (int n = first; n <= last; n += step) list.push_back(std::to_string(n));
  return list;
}

}  // namespace model
