#include "runner/main_screen.h"

#include "forms/main_form_words.h"
#include "forms/sound_settings_words.h"
#include "model/session_file.h"
#include "model/training_model.h"

namespace runner {
MainScreen::MainScreen(const context::Context& context, voice::Voice& voice, SettingsPage& settings,
                       std::string folder, std::string version)
    : context_(context),
      voice_(voice),
      settings_(settings),
      main_(context.screens.main),
      state_(context.state),
      folder_(std::move(folder)),
      version_(std::move(version)) {
  connectMenus();
  connectHoverHelp();
  main_.Command4.click.handle([this] { quitterProgramme(); });
  main_.Image13.click.handle([this] { main_.Picture3.visible = !main_.Picture3.visible; });
  main_.MyButton20.click.handle([this] { main_.Picture12.visible = false; });
}

void MainScreen::demarrerProgramme() {
  makeFolders();
  voice_.ownVoice().lookIn(state_.dossierProgramme + "voix/");
  fillLists();
  main_.MyFrame1.caption = "Ventoria";
  state_.dureeSequence = model::timeValue("00:00:00");
  state_.pasChrono = model::timeValue("00:00:01");
  main_.show();
  context_.screens.editor.load();
  context_.loop.guard([this] { settings_.lireOuCreer(); });
  main_.mnVerAct.caption = "Version Actuelle du Logiciel (" + version_ + ")";
  voice_.dire(forms::voiceOn(main_) ? "annvocalActiv.wav" : "annvocalDesactiv.wav");
  context_.screens.volume.load();
  context_.screens.announcements.load();
  context_.screens.player.load();
  tellOfOwnVoice();
}

void MainScreen::tellOfOwnVoice() {
  const std::string complaint = voice_.ownVoice().complaint();
  if (complaint.empty()) return;
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Votre Propre Voix...", complaint});
}

void MainScreen::makeFolders() {
  state_.dossierProgramme = folder_ + "/";
  state_.dossierSeances = state_.dossierProgramme + "chronodat/";
  state_.dossierAnnonces = state_.dossierProgramme + "annonces/";
  for (const std::string& folder :
       {folder_, state_.dossierProgramme + "chronodat", state_.dossierProgramme + "annonces",
        state_.dossierProgramme + "ambiances", state_.dossierProgramme + "Vid"}) {
    context_.outside.files.makeFolder(folder);
    model::supprimerRestes(context_.outside.files, folder + "/");
  }
}

void MainScreen::fillLists() {
  main_.Combo1.setLines(model::twoDigits(23));
  main_.Combo2.setLines(model::twoDigits(59));
  main_.Combo3.setLines(model::twoDigits(59));
  main_.Combo5.setLines(model::numbers(1, 60));
  main_.Combo5.text = std::to_string(forms::usualCountdown);
}

void MainScreen::connectMenus() {
  main_.mnCreat.click.handle([this] { openEditor(); });
  main_.mnsons.click.handle([this] { settings_.ouvrir(); });
  main_.Command2.click.handle([this] { main_.mnMenuPrincipal.popUp(); });
  main_.MyButton19.alternate.handle([this] { main_.mnMenu1.popUp(); });
  main_.MyButton21.alternate.handle([this] { main_.mnMenu2.popUp(); });
}

void MainScreen::openEditor() {
  main_.hide();
  forms::showCountdownLength(main_);
  if (!forms::ridePaused(main_)) main_.MyFrame2.visible = true;
  context_.screens.editor.show();
}

void MainScreen::connectHoverHelp() {
  const auto explain = [this](platform::Control& control, const char* text) {
    control.hover.handle([this, text] { main_.Label35.caption = text; });
  };
  explain(
      main_.Command2,
      "La Commande (Menu) vous offre divers Sous-Menus, tel que Paramètres, Mise à Jour, Créations, Ambiances Musicales ou Vocales, Propriétés Audios pour vos Préférences Sonores...");
  explain(main_.Command4, "Cliquez sur cette Commande et vous Quitterez le Programme tout simplement...");
  explain(
      main_.Command7,
      "en Cliquant sur cette Commande, vous pourez faire une (Pause) ou (Reprendre) la Séance d'Entrainement en cours...");
  explain(main_.MyButton4,
          "Cliquez sur cette Commande et vous Annulerez Immédiatement la Séances d'Entrainement en cours...");
  explain(
      main_.MyButton5,
      "Cliquez sur cette Commande et vous Afficherez la Page des Création et Compositions de Séances d'Entrainement...");
  explain(main_.Image15, "Si vous avez besoin d'Aide Visuellement, Cliquez ici et consultez les Vidéos...");
}

void MainScreen::quitterProgramme() {
  context_.screens.player.Timer3.enabled = true;
  voice_.attendre(1);
  if (state_.ecranVeilleActif == "oui") context_.outside.screenSaver.setActive(true);
  context_.loop.quit();
}

}  // namespace runner
