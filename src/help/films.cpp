#include "help/films.h"

#include <utility>

namespace help {

Films::Films(const context::Context& context) : context_(context), page_(context.screens.films) {
  connectPage();
  connectOpeners();
  for (platform::ComboBox* list : {&context_.screens.editor.Combo6, &context_.screens.main.Combo6}) {
    list->click.handle([this, list] { play(list->text); });
  }
}

void Films::connectPage() {
  const std::pair<platform::Button*, const char*> films[] = {
      {&page_.MyButton1, "Création d'une Séance.avi"},
      {&page_.MyButton2, "Création d'une Séance.avi"},  // both steps are in one film
      {&page_.MyButton3, "Enregistrer Une Séance.avi"},
      {&page_.MyButton4, "Supprimer Une Ligne.avi"},
      {&page_.MyButton5, "Compte à Rebours.avi"},
      {&page_.MyButton6, "Infos & Vidéos.avi"},
      {&page_.MyButton7, "Ambiance Musicale.avi"},
      {&page_.MyButton8, "Enregistrer Une Annonce Vocale.avi"},
  };
  for (const auto& [button, film] : films) {
    button->click.handle([this, name = film] { playIfThere(name); });
  }
  page_.MyButton9.click.handle([this] { page_.unload(); });
}

void Films::connectOpeners() {
  forms::CreerCycle& editor = context_.screens.editor;
  forms::MainForm& main = context_.screens.main;
  // The hover help of the last two pictures promises the films, so they open them, too.
  for (platform::Event<>* opener : {&editor.Image6.click, &editor.Image7.click, &editor.Label20.click,
                                    &main.mnAideVideo.click, &editor.Image1.click, &main.Image15.click}) {
    opener->handle([this] { page_.show(); });
  }
}

std::string Films::pathOf(const std::string& film) const {
  return context_.state.dossierProgramme + "Vid/" + film;
}

void Films::play(const std::string& film) {
  context_.outside.shell.openFile(pathOf(film));
}

void Films::playIfThere(const std::string& film) {
  if (context_.outside.files.exists(pathOf(film))) {
    play(film);
  } else {
    context_.outside.dialogs.message({platform::MessageKind::Exclamation, platform::MessageButtons::Ok,
                                      "Impossible d'Afficher l'Aide...",
                                      "Impossible car Le Fichier Vidéo a Disparu...!"});
  }
}

}  // namespace help
