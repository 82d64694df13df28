#include "heartrate/calculator.h"

#include <array>

#include "heartrate/formulas.h"
#include "heartrate/help_texts.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace heartrate {
namespace {

// As the boxes have always spelt them.
constexpr std::array<const char*, methodCount> methodCaptions{
    "Astrand et Ryhming (1954)", "Inbar (1994)",     "Robers et Lanwher (2002)",
    "Gellish et al. 2007)",      "Méthode Karnoven", "FCMaxi et FCRepos Perso"};

std::vector<std::string> behindBlank(std::vector<std::string> lines) {
  lines.insert(lines.begin(), std::string(model::emptyCell));
  return lines;
}

}  // namespace

Calculator::Calculator(const context::Context& context)
    : editor_(context.screens.editor),
      personal_(context, figures_),
      column_(context, figures_),
      screen_(context, figures_) {
  attachHelp(editor_);
}

void Calculator::load(const std::function<void()>& fillGrid) {
  chargerListes();
  personal_.lireAuChargement();
  fillGrid();
  finirChargement();
}

void Calculator::chargerListes() {
  figures_.formeEnChargement = "oui";
  editor_.Combo7.setLines(behindBlank(model::numbers(10, 110)));
  editor_.Combo8.setLines({methodCaptions.begin(), methodCaptions.end()});
  editor_.Combo9.setLines(behindBlank(model::numbers(50, 100, 5)));
  editor_.Combo10.setLines(behindBlank({"Féminin", "Masculin"}));
  editor_.Combo11.setLines(behindBlank(model::numbers(100, 230)));
  editor_.Combo12.setLines(behindBlank(model::numbers(10, 100)));
  editor_.Combo13.setLines({methodCaptions.begin(), methodCaptions.end()});
}

void Calculator::finirChargement() {
  screen_.clearDesignTexts();
  figures_.formeEnChargement.clear();
  if (!platform::trim(figures_.persoAge.get()).empty()) editor_.MyButton38.click();
}

}  // namespace heartrate
