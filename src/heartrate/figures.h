// What the parts of the calculator share: the saved figures, as text, and the method in use.
#pragma once

#include <string>

namespace heartrate {

struct Figures {
  std::string persoAge;           // years
  std::string persoSexe;          // "Féminin" or "Masculin"; enters no formula
  std::string persoFCMax;         // bpm
  std::string persoFCRepos;       // bpm
  std::string persoMethode;       // "0" to "5"
  int methodeFC = 0;              // the method that the computations go by; the boxes may show another
  std::string formeEnChargement;  // "oui" while the form loads

  [[nodiscard]] bool loading() const { return formeEnChargement == "oui"; }
};

}  // namespace heartrate
