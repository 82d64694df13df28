#include "editor/cell_texts.h"

#include <algorithm>
#include <array>

#include "model/grid_rows.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace editor {
namespace {

namespace column = model::column;

struct ColumnHelp {
  int column;
  const char* text;
};

constexpr std::array<ColumnHelp, 8> helps{
    {{column::sessionName, "La Colonne du (Nom de Séance) ne peuvent pas être Modifier..."},
     {column::sequence, "Cliquez sur la Zone de Liste, et choisissez un (Nom de Séquence)..."},
     {column::cadence,
      "Cliquez sur la Zone de Liste, et choisissez la (Cadence) d'entrainement en (Nombre de Tours du Pédalier par Minute), à noter que cette Zone peut très bien Rester en Blanc..."},
     {column::chainring,
      "Cliquez sur la Zone de Liste, et choisissez le Type de (Plateau) pour cette Séquence d'Entrainement, à noter que cette Zone peut très bien Rester en Blanc..."},
     {column::gear,
      "Cliquez sur la Zone de Liste, et choisissez le Type de (Braquet)  pour cette Séquence d'Entrainement, à noter que cette Zone peut très bien Rester en Blanc..."},
     {column::duration,
      "Cliquez sur les Zones de Listes, et choisissez la Durée de cette Séquence d'Entrainement en (H:M:S), à noter que cette Zone doit Absolument être Supérieure à Zéro...(Minimum 1 seconde)"},
     {column::announcement,
      "Cette Zone est Exclusivement Réservée pour les (Annonces Vocales), elle permet de Choisir le Message que vous aurez Enregistré et qui doit être dit à ce moment précis de la Séance d'Entrainement..."},
     {column::deleteMark,
      "Cette Zone marquée d'une (x) vous permet en faisant un Clik-Droit dessus, de Supprimer la Ligne ou vous vous trouvez..."}}};

}  // namespace

const std::string dashHelp =
    "Toutes les Zones constituée de (-----) ne peuvent pas être Modifier, de même pour la Première et la Dernière Colonne...";

std::vector<std::string> cellEntries(forms::CreerCycle& form, int wanted) {
  switch (wanted) {
    case column::cycleName:
      return {"Cycle 1", "Cycle 3", "galibier 1"};
    case column::sessionName:
      return {"Séance 1", "Séance 3", "essai 1"};
    case column::sequence:
      return model::sequenceKinds();
    case column::cadence:
      return model::cadences();
    case column::chainring:
      return model::chainrings();
    case column::gear:
      return model::gears();
    case column::repeat:
      return model::repeatSwitch();
    case column::times:
      return model::repeatCounts();
    case column::announcement:
      form.File1.refresh();
      return form.File1.lines();
    case column::heartRate:
      return model::targetPercents();
    default:
      return {};
  }
}

std::string columnHelp(int wanted, const std::string& cell) {
  const auto* found =
      std::find_if(helps.begin(), helps.end(), [&](const ColumnHelp& row) { return row.column == wanted; });
  if (found != helps.end()) return found->text;
  return platform::trim(cell) == model::noMeaning ? dashHelp : std::string();
}

}  // namespace editor
