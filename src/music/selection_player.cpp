#include "music/selection_player.h"

#include "forms/enr_une_annonce_words.h"
#include "forms/music_buttons.h"
#include "platform/text.h"

namespace music {
namespace {

constexpr int largestSize = 14;      // points
constexpr int nameWidth = 7000;      // twips
constexpr int twipsAPointWide = 11;  // average width of a character, for each point of its size

// Shows the name of the chosen piece in the largest size that fits its place.
void fitName(forms::EnrUneAnnonce& form, const std::string& name) {
  const auto characters = static_cast<int>(platform::length(name));
  const auto measure = [&](int size) {
    form.Label26.size = size;
    form.Label26.width = characters * size * twipsAPointWide;
  };
  form.Label26.caption = name;
  measure(largestSize);
  while (form.Label26.width > form.Label23.width && form.Label26.size > 1) measure(form.Label26.size - 1);
  form.Label23.size = form.Label26.size;
  form.Label6.size = form.Label26.size;
}

}  // namespace

SelectionPlayer::SelectionPlayer(const context::Context& context, SelectionList& list, Selection& selection)
    : context_(context), library_(context.screens.announcements), list_(list), selection_(selection) {
  library_.Label23.width = nameWidth;
  library_.MyButton12.click.handle([this] { demarrer(); });
  library_.Timer4.tick.handle([this] { watch(); });
  library_.mnEcouter.click.handle([this] { ecouter(); });
}

void SelectionPlayer::demarrer() {
  context_.state.selectionEnCours = "oui";
  selection_.listeChargee = "";
  selection_.nbMusiquesJouees = 0;
  library_.Timer4.enabled = true;
  selection_.prochaineMusique = 1;
  musiqueSuivante();
  forms::showMusicPlaying(context_.screens.main);
}

int SelectionPlayer::tickedFrom(int row) const {
  while (row <= library_.ListView1.rowCount() && !library_.ListView1.checked(row)) ++row;
  return row <= library_.ListView1.rowCount() ? row : 0;
}

void SelectionPlayer::musiqueSuivante() {
  if (selection_.nbMusiquesCochees == 0) {
    library_.Timer4.enabled = false;
    return;
  }
  if (library_.ListView1.rowCount() == 0) return;
  int indexMusique = tickedFrom(selection_.prochaineMusique);
  if (indexMusique == 0 && forms::selectionRepeats(library_)) indexMusique = tickedFrom(1);
  if (indexMusique == 0) {
    library_.Timer4.enabled = false;
    return;
  }
  selection_.nbMusiquesJouees = selection_.nbMusiquesJouees + 1;
  selection_.prochaineMusique = indexMusique + 1;
  play(library_.ListView1.text(indexMusique, 1));
}

// The timer starts the player in an event of its own, after this handler. Until then the length of the piece
// before must not be taken for that of the new one.
void SelectionPlayer::play(const std::string& name) {
  context_.state.music = model::Playback{};
  context_.state.dureeMusique.clear();
  context_.screens.player.Text1.text = list_.pathOf(name);
  context_.screens.player.Timer2.enabled = true;
  library_.Label6.caption = name;
  library_.Label23.caption = name;
  fitName(library_, name);
  library_.Label23.visible = true;
}

void SelectionPlayer::watch() {
  const bool chosen = forms::musicChosen(library_);
  library_.Label5.visible = chosen;
  library_.Label7.visible = chosen;
  for (platform::Button* button : {&library_.Command9, &library_.Command10, &library_.Command11,
                                   &library_.Command12, &library_.Command13}) {
    button->enabled = chosen;
  }
  // The player stays at the end of a piece, so checking once a second is enough.
  const bool pieceEnded = chosen && context_.state.music.get().atEnd();
  if (chosen) library_.Label6.visible = true;
  if (pieceEnded) musiqueSuivante();
  if (selection_.nbMusiquesJouees == selection_.nbMusiquesCochees.get()) library_.Command13.enabled = false;
  if (pieceEnded) return;
  library_.Timer4.rest({&library_.Label5.caption, &library_.Label5.visible, &library_.Label6.caption,
                        &library_.Label6.visible, &library_.Label7.visible, &library_.Command9.enabled,
                        &library_.Command10.enabled, &library_.Command11.enabled, &library_.Command12.enabled,
                        &library_.Command13.enabled, &context_.state.music, &selection_.nbMusiquesJouees,
                        &selection_.nbMusiquesCochees});
}

void SelectionPlayer::ecouter() {
  const int row = library_.ListView1.selectedRow();
  if (row == 0) return;
  context_.state.selectionEnCours = "";
  const std::string& name = library_.ListView1.text(row, 1);
  if (!context_.outside.files.exists(list_.pathOf(name))) {
    context_.outside.dialogs.message({platform::MessageKind::Information, platform::MessageButtons::Ok,
                                      "Musique Introuvable...", "Cette Musique a été Supprimée..."});
    return;
  }
  play(name);
  library_.Timer4.enabled = true;
}

}  // namespace music
