// What the parts of the calculator share: the saved figures, as text, and the method in use.
#pragma once

#include <string>

#include "platform/observable.h"

namespace heartrate {

struct Figures {
  using Text = platform::Variable<std::string>;

  Text persoAge;                  // years
  Text persoSexe;                 // "Féminin" or "Masculin"; enters no formula
  Text persoFCMax;                // bpm
  Text persoFCRepos;              // bpm
  Text persoMethode;              // "0" to "5"
  int methodeFC = 0;              // the method that the computations go by; the boxes may show another
  std::string formeEnChargement;  // "oui" while the form loads

  [[nodiscard]] bool loading() const { return formeEnChargement == "oui"; }
};

}  // namespace heartrate
