#include "heartrate/personal_parameters.h"

#include "forms/creer_cycle_words.h"
#include "heartrate/formulas.h"
#include "heartrate/input_checks.h"
#include "model/numbers.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace heartrate {
namespace {

constexpr const char* fileName = "ParPerso.tq1";

void show(platform::ComboBox& box, const std::string& text) {
  box.text = text.empty() ? std::string(model::emptyCell) : text;
}

}  // namespace

PersonalParameters::PersonalParameters(const context::Context& context, Figures& figures)
    : context_(context),
      editor_(context.screens.editor),
      figures_(figures),
      modes_(forms::targetModes(editor_)) {
  editor_.MyButton40.click.handle([this] { enregistrerParPerso(); });
  editor_.MyButton41.click.handle([this] { chargerParPerso(); });
  coupleModes();
}

void PersonalParameters::coupleModes() {
  for (std::size_t i = 0; i < modes_.size(); ++i) {
    modes_.at(i)->click.handle([this, i] {
      if (modes_.at(i)->value != 1) return;
      for (platform::CheckBox* other : modes_) {
        if (other != modes_.at(i)) other->value = 0;
      }
      context_.state.modeAffichageFC = static_cast<int>(i) + 1;
    });
  }
}

std::string PersonalParameters::path() const {
  return context_.state.dossierProgramme + fileName;
}

void PersonalParameters::lireAuChargement() {
  model::PersonalFigures saved;
  context_.loop.guard([&] { saved = model::readPersonal(context_.outside.files, path()); });
  montrer(saved);
}

void PersonalParameters::chargerParPerso() {
  montrer(model::readPersonal(context_.outside.files, path()));
}

void PersonalParameters::montrer(const model::PersonalFigures& saved) {
  const std::string nothing(model::emptyCell);
  const bool fresh = saved.age.empty();
  figures_.persoAge = fresh ? nothing : saved.age;
  figures_.persoSexe = fresh ? nothing : saved.sexe;
  figures_.persoFCMax = fresh ? nothing : saved.fcMax;
  figures_.persoFCRepos = fresh ? nothing : saved.fcRepos;
  figures_.persoMethode = fresh ? "0" : saved.methode;
  show(editor_.Combo7, figures_.persoAge);
  show(editor_.Combo10, figures_.persoSexe);
  show(editor_.Combo11, figures_.persoFCMax);
  show(editor_.Combo12, figures_.persoFCRepos);
  showMethod();
  // The opposite of what picking a method does: Karvonen shows the note here and hides it there.
  editor_.Label62.visible = editor_.Combo8.index == karvonen;
  setDisplayMode(figures_.persoMethode.get().empty() ? std::string() : saved.modeAffichage);
}

void PersonalParameters::showMethod() {
  const int saved = model::lenientInteger(figures_.persoMethode.get());
  const int methode = saved >= 0 && saved < methodCount ? saved : 0;
  editor_.Combo8.index = methode;
  editor_.Combo13.index = methode;
  if (figures_.persoMethode.get().empty()) return;
  editor_.Combo9.text = "100";
  if (!isBlank(editor_.Combo7)) editor_.MyButton38.click();
}

// A file that has no mode yet, or a damaged one, gives the first.
void PersonalParameters::setDisplayMode(const std::string& saved) {
  const int read = model::lenientInteger(saved);
  const int mode = read >= 1 && read <= static_cast<int>(modes_.size()) ? read : 1;
  context_.state.modeAffichageFC = mode;
  modes_.at(static_cast<std::size_t>(mode) - 1)->value = 1;
}

void PersonalParameters::enregistrerParPerso() {
  const int mode = context_.state.modeAffichageFC;
  // The figures are the rider's own, so the file always names the method that uses them.
  model::writePersonal(context_.outside.files, path(),
                       {editor_.Combo7.text, editor_.Combo10.text, editor_.Combo11.text, editor_.Combo12.text,
                        std::to_string(ownFigures), std::to_string(mode == 0 ? 1 : mode)});
  const model::PersonalFigures saved = model::readPersonal(context_.outside.files, path());
  const auto withoutZeros = [](const std::string& text) {
    return model::plainNumber(model::lenientNumber(text));
  };
  figures_.persoAge = saved.age;
  figures_.persoSexe = saved.sexe;
  figures_.persoFCMax = saved.fcMax;
  figures_.persoFCRepos = saved.fcRepos;
  if (!saved.age.empty()) editor_.Combo7.text = saved.age;
  if (!saved.sexe.empty()) editor_.Combo10.text = saved.sexe;
  if (!saved.fcMax.empty()) editor_.Combo11.text = withoutZeros(saved.fcMax);
  if (!saved.fcRepos.empty()) editor_.Combo12.text = withoutZeros(saved.fcRepos);
  figures_.persoMethode = saved.methode;
  editor_.Combo8.index = model::lenientInteger(saved.methode);
  setDisplayMode(saved.modeAffichage);
  editor_.Combo8.click();
  editor_.Combo13.click();
}

}  // namespace heartrate
