#include "heartrate/input_checks.h"

#include <array>

#include "heartrate/formulas.h"
#include "platform/text.h"

namespace heartrate {
namespace {

constexpr std::array<const char*, 3> firstLines{
    "Pour Utiliser cette Fonction, vous devez Choisir au moins un (Age)...",
    "Pour Utiliser le Programme avec Vos Paramètres Persos,vous devez Choisir un (Age), puis une (FCRepos).",
    "Pour Utiliser le Programme avec Vos Paramètres Persos,vous devez Choisir un (Age), puis une (FCMaxi), puis une (FCRepos).",
};
constexpr std::array<const char*, 3> secondLines{
    "Ce Paramètre vous permettra d'Obtenir les Meilleurs Caluls de Fréquences Cardiaques Conventionnelles à Insérer dans vos Séances d'Entraînements.",
    "Ces Paramètres vous permettront d'Obtenir les Meilleurs Caluls de Fréquences Cardiaques Conventionnelles à Insérer dans vos Séances d'Entraînements.",
    "Ces Paramètres vous permettront d'Obtenir les Meilleurs Caluls de Fréquences Cardiaques Conventionnelles à Insérer dans vos Séances d'Entraînements.",
};
constexpr const char* thirdLine =
    "Ensuite, Pensez à (Enregistrer) en Cliquant sur la Commande (Enregistrer Mes Nouveaux Paramètres Persos)...";

}  // namespace

bool isBlank(const platform::ComboBox& box) {
  return platform::trim(box.text.get()).empty();
}

bool holds(const platform::ComboBox& box, const std::string& saved) {
  return platform::trim(box.text.get()) == platform::trim(saved);
}

void showNeededFigures(platform::Dialogs& dialogs, Needed needed) {
  const auto row = static_cast<std::size_t>(needed);
  dialogs.message({platform::MessageKind::Information, platform::MessageButtons::Ok, "",
                   std::string(firstLines.at(row)) + "\n" + secondLines.at(row) + "\n" + thirdLine});
}

bool requireFigures(platform::Dialogs& dialogs, const forms::CreerCycle& form) {
  const int methode = form.Combo8.index;
  const bool missing =
      methode >= 0 && (isBlank(form.Combo7) || (byReserve(methode) && isBlank(form.Combo12)) ||
                       (methode == ownFigures && isBlank(form.Combo11)));
  if (!missing) return true;
  showNeededFigures(dialogs, byAge(methode)        ? Needed::Age
                             : methode == karvonen ? Needed::AgeAndRest
                                                   : Needed::AllFigures);
  form.MyButton25.click();
  return false;
}

}  // namespace heartrate
