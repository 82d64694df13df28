#include "music/music_deletion.h"

#include <algorithm>

#include "forms/enr_une_annonce_words.h"

namespace music {

MusicDeletion::MusicDeletion(const context::Context& context, SelectionList& list, Selection& selection)
    : context_(context), library_(context.screens.announcements), list_(list), selection_(selection) {
  library_.mnsupprim.click.handle([this] { removeFromList(); });
  library_.mnsupDef.click.handle([this] { deletePiece(); });
  library_.mnSupTotBiblioth.click.handle([this] { deleteAll(); });
  library_.mnViderListe.click.handle([this] {
    library_.MyButton13.click();
    library_.MyButton8.click();  // also deletes the announcement that is open
  });
}

void MusicDeletion::removeFromList() {
  const int row = library_.ListView1.selectedRow();
  if (row == 0) return;
  nomMusique_ = library_.ListView1.text(row, 1);
  library_.ListView1.removeRow(row);
  library_.ListView1.select(std::min(row, library_.ListView1.rowCount()));
  library_.ListView1.focus();
  list_.readLibrary();
  // Lowered whether the row was ticked or not.
  if (selection_.nbMusiquesCochees > 0) selection_.nbMusiquesCochees = selection_.nbMusiquesCochees - 1;
  list_.showCount();
  list_.offerStart(selection_.nbMusiquesCochees);
}

void MusicDeletion::deletePiece() {
  if (library_.ListView1.selectedRow() == 0) return;
  library_.Label6.caption = forms::noMusicChosen;
  library_.Command11.click();
  removeFromList();
  library_.File1.refresh();
  const std::string path = list_.pathOf(nomMusique_);
  if (!context_.outside.files.exists(path)) return;
  context_.outside.files.remove(path);
  list_.readLibrary();
}

void MusicDeletion::deleteAll() {
  library_.Label6.caption = forms::noMusicChosen;
  library_.File1.refresh();
  for (const std::string& name : library_.File1.lines()) context_.outside.files.remove(list_.pathOf(name));
  library_.ListView1.clearRows();
  list_.readLibrary();
  library_.MyButton11.click();
}

}  // namespace music
