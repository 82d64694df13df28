#include "capture/music_deletion.h"

#include <algorithm>

namespace capture {

MusicDeletion::MusicDeletion(const context::Context& context, SelectionList& list, Selection& selection)
    : context_(context), form_(context.screens.announcements), list_(list), selection_(selection) {
  form_.mnsupprim.click.handle([this] { removeFromList(); });
  form_.mnsupDef.click.handle([this] { deletePiece(); });
  form_.mnSupTotBiblioth.click.handle([this] { deleteAll(); });
  form_.mnViderListe.click.handle([this] {
    form_.MyButton13.click();
    form_.MyButton8.click();  // the announcement that is open goes along
  });
}

void MusicDeletion::removeFromList() {
  const int row = form_.ListView1.selectedRow();
  if (row == 0) return;
  nomMusique_ = form_.ListView1.text(row, 1);
  form_.ListView1.removeRow(row);
  form_.ListView1.select(std::min(row, form_.ListView1.rowCount()));
  form_.ListView1.focus();
  list_.readLibrary();
  // Lowered whether the row was ticked or not.
  if (selection_.nbMusiquesCochees > 0) --selection_.nbMusiquesCochees;
  list_.showCount();
  list_.offerStart(selection_.nbMusiquesCochees);
}

void MusicDeletion::deletePiece() {
  if (form_.ListView1.selectedRow() == 0) return;
  form_.Label6.caption = noMusicChosen;
  form_.Command11.click();
  removeFromList();
  form_.File1.refresh();
  const std::string path = list_.pathOf(nomMusique_);
  if (!context_.outside.files.exists(path)) return;
  context_.outside.files.remove(path);
  list_.readLibrary();
}

void MusicDeletion::deleteAll() {
  form_.Label6.caption = noMusicChosen;
  form_.File1.refresh();
  for (const std::string& name : form_.File1.lines()) context_.outside.files.remove(list_.pathOf(name));
  form_.ListView1.clearRows();
  list_.readLibrary();
  form_.MyButton11.click();
}

}  // namespace capture
