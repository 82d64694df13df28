#include "model/shared_state.h"

#include <algorithm>
#include <functional>

namespace model {
namespace {

using Reader = std::function<std::string(const SharedState&)>;

Reader text(std::string SharedState::*member) {
  return [member](const SharedState& state) { return state.*member; };
}
Reader text(platform::Variable<std::string> SharedState::*member) {
  return [member](const SharedState& state) { return (state.*member).get(); };
}
Reader number(int SharedState::*member) {
  return [member](const SharedState& state) { return std::to_string(state.*member); };
}
Reader time(TimeValue SharedState::*member) {
  return [member](const SharedState& state) { return formatTime(state.*member); };
}
Reader time(platform::Variable<TimeValue> SharedState::*member) {
  return [member](const SharedState& state) { return formatTime(state.*member); };
}
std::string slotText(const SharedState& state) {
  const auto* name = std::get_if<std::string>(&state.sonDemande);
  return name != nullptr ? *name : std::to_string(std::get<int>(state.sonDemande));
}

struct Variable {
  std::string name;
  Reader read;
};

const std::vector<Variable>& variables() {
  static const std::vector<Variable> table{
      {"nbSequences", number(&SharedState::nbSequences)},
      {"nbSeances", number(&SharedState::nbSeances)},
      {"seanceTitre", text(&SharedState::seanceTitre)},
      {"dureeTotale", time(&SharedState::dureeTotale)},
      {"dureeChrono", text(&SharedState::dureeChrono)},
      {"sequenceCourante",
       [](const SharedState& state) { return std::to_string(state.plan.sequenceCourante); }},
      {"seanceCourante", number(&SharedState::seanceCourante)},
      {"dureeSequence", time(&SharedState::dureeSequence)},
      {"pasChrono", time(&SharedState::pasChrono)},
      {"ecouleSequence", time(&SharedState::ecouleSequence)},
      {"restantSequence", time(&SharedState::restantSequence)},
      {"moitieSequence", text(&SharedState::moitieSequence)},
      {"etatFin", text(&SharedState::etatFin)},
      {"modeAffichageFC", number(&SharedState::modeAffichageFC)},
      {"alternanceFC", number(&SharedState::alternanceFC)},
      {"ecranVeilleActif", text(&SharedState::ecranVeilleActif)},
      {"sonDemande", slotText},
      {"sonSeance", text(&SharedState::sonSeance)},
      {"sonNumSequence", text(&SharedState::sonNumSequence)},
      {"sonSequence", text(&SharedState::sonSequence)},
      {"sonCadence", text(&SharedState::sonCadence)},
      {"sonBraquet", text(&SharedState::sonBraquet)},
      {"sonPlateau", text(&SharedState::sonPlateau)},
      {"musiqueSuit", text(&SharedState::musiqueSuit)},
      {"selectionEnCours", text(&SharedState::selectionEnCours)},
      {"dureeMusique", text(&SharedState::dureeMusique)},
      {"dossierProgramme", text(&SharedState::dossierProgramme)},
      {"dossierSeances", text(&SharedState::dossierSeances)},
      {"dossierAnnonces", text(&SharedState::dossierAnnonces)},
  };
  return table;
}

}  // namespace

std::optional<std::string> variableText(const SharedState& state, std::string_view name) {
  const auto& table = variables();
  const auto found =
      std::find_if(table.begin(), table.end(), [&](const Variable& v) { return v.name == name; });
  if (found == table.end()) return std::nullopt;
  return found->read(state);
}

std::vector<std::string> variableNames() {
  std::vector<std::string> names;
  for (const Variable& variable : variables()) names.push_back(variable.name);
  return names;
}

}  // namespace model
