// The saved figures and the display mode: read from the file onto the screen, and saved from there.
#pragma once

#include <array>

#include "context/context.h"
#include "heartrate/figures.h"
#include "model/personal_file.h"

namespace heartrate {

class PersonalParameters {
 public:
  PersonalParameters(const context::Context& context, Figures& figures);

  // While the form loads: a file that cannot be read is told to the rider and leaves the figures blank.
  void lireAuChargement();

 private:
  void chargerParPerso();
  void enregistrerParPerso();
  [[nodiscard]] std::string path() const;
  void coupleModes();
  void montrer(const model::PersonalFigures& saved);
  void showMethod();
  void setDisplayMode(const std::string& saved);

  context::Context context_;
  forms::CreerCycle& editor_;
  Figures& figures_;
  std::array<platform::CheckBox*, 3> modes_;  // display modes 1 to 3
};

}  // namespace heartrate
