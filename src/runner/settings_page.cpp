#include "runner/settings_page.h"

#include "forms/main_form_words.h"
#include "forms/sound_settings_words.h"
#include "model/numbers.h"

namespace runner {
namespace {

constexpr int longestCountdown = 60;  // s
constexpr std::array<int, model::settingsBoxCount> defaultBoxes{0, 1, 0, 1, 0, 0, 0, 0, 1, 1, 0, 1, 1};
// The file differs from the boxes on purpose: it stores continuous music and a short countdown.
constexpr std::array<int, model::settingsBoxCount> defaultFile{0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 1, 1, 1};
constexpr const char* defaultFileCountdown = "2 ";

}  // namespace

SettingsPage::SettingsPage(const context::Context& context, voice::Voice& voice)
    : context_(context),
      voice_(voice),
      main_(context.screens.main),
      state_(context.state),
      boxes_(forms::settingsBoxes(main_)) {
  coupleBoxes();
  main_.MyButton7.click.handle([this] { enregistrerParametres(); });
  main_.MyButton8.click.handle([this] {
    parametresParDefaut();
    voice_.dire("parametrespardefautenr.wav");
  });
  main_.MyButton16.click.handle([this] { lireParametres(); });
  main_.MyButton10.click.handle([this] { enregistrerParametres(); });
  main_.MyButton6.click.handle([this] { close(); });
  platform::once(main_.Timer8, [this] { ouvrir(); });
}

void SettingsPage::coupleBoxes() {
  main_.Check1.click.handle([this] { forms::turnVoice(main_, main_.Check1.value != 1); });
  main_.Check2.click.handle([this] {
    const bool on = forms::voiceOn(main_);
    for (platform::CheckBox* part : forms::spokenParts(main_)) part->value = on ? 1 : 0;
    voice_.dire(on ? "annvocalActiv.wav" : "annvocalDesactiv.wav");
  });
  for (platform::CheckBox* part : forms::spokenParts(main_)) {
    part->click.handle([this, part] {
      if (part->value == 1) forms::turnVoice(main_, true);
    });
  }
  const auto exclude = [this](platform::CheckBox& box, platform::CheckBox& other) {
    box.click.handle([this, &box, &other] {
      if (box.value == 1) {
        forms::turnVoice(main_, true);
        other.value = 0;
      } else {
        other.value = 1;
      }
    });
  };
  exclude(main_.Check10, main_.Check11);
  exclude(main_.Check11, main_.Check10);
}

std::string SettingsPage::path() const {
  return state_.dossierProgramme + "par.tq3";
}

void SettingsPage::lireOuCreer() {
  if (context_.outside.files.exists(path())) {
    lireParametres();
  } else {
    parametresParDefaut();
  }
}

void SettingsPage::lireParametres() {
  const std::optional<model::Settings> settings = model::readSettings(context_.outside.files, path());
  if (!settings) {
    repair();
    return;
  }
  for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_.at(i)->value = settings->boxes.at(i);
  const int countdown = model::lenientInteger(settings->countdown);
  main_.Combo5.text = std::to_string(countdown == 0 ? forms::usualCountdown : countdown);
  state_.dureeChrono = main_.Combo5.text;
  forms::showCountdownLength(main_);
  if (countdown > longestCountdown) state_.dureeChrono = std::to_string(longestCountdown);
}

void SettingsPage::repair() {
  context_.outside.dialogs.message(
      {platform::MessageKind::Critical, platform::MessageButtons::Ok, "Fichier Paramètres à Réinitialiser...",
       "Le Fichier de Données des Paramètres des Avertissement Sonores, a Subit des Modifications Néfastes au Bon Fonctionnement du Programme...\n"
       "je vais donc Réinitialiser ses Données par (Défaut), si ces Paramètres ne vous conviennent pas, vous "
       "pourez les Changer par le Menu (Paramètres des Annonces Sonores)..."});
  parametresParDefaut();
}

void SettingsPage::parametresParDefaut() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    boxes_.at(i)->value = defaultBoxes.at(i);
    if (boxes_.at(i) == &main_.Check2) voice_.attendre(2);
  }
  model::writeSettings(context_.outside.files, path(), {defaultFile, defaultFileCountdown});
}

void SettingsPage::enregistrerParametres() {
  model::Settings settings;
  for (std::size_t i = 0; i < boxes_.size(); ++i) settings.boxes.at(i) = boxes_.at(i)->value;
  settings.countdown = main_.Combo5.text;
  model::writeSettings(context_.outside.files, path(), settings);
  state_.dureeChrono = main_.Combo5.text;
  main_.MyButton10.enabled = false;
  voice_.dire("parPersoenr.wav");
}

void SettingsPage::ouvrir() {
  forms::hide(forms::timeBoxes(main_));
  main_.Picture1.visible = true;
}

// The time boxes come back where a manual chrono can still be chosen: at rest, with nothing programmed.
void SettingsPage::close() {
  main_.Picture1.visible = false;
  if (state_.nbSequences == 0 && !forms::chronoRuns(main_)) forms::show(forms::timeBoxes(main_));
}

}  // namespace runner
