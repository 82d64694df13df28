#include "capture/selection_list.h"

namespace capture {

SelectionList::SelectionList(const context::Context& context, Selection& selection)
    : context_(context), form_(context.screens.announcements), list_(form_.ListView1), selection_(selection) {
  form_.Command8.click.handle([this] { ouvrir(); });
  form_.MyButton11.click.handle([this] { fermer(); });
  form_.MyButton13.click.handle([this] {
    list_.clearRows();
    form_.MyButton11.click();
  });
  list_.rowTicked.handle([this](int) { rowTicked(); });
  list_.pressed.handle([this](platform::MouseButton button) { openMenu(button); });
  form_.Check1.click.handle([this] { tickAll(); });
  form_.Check2.click.handle([this] { tickRepeat(); });
}

std::string SelectionList::pathOf(const std::string& name) const {
  return context_.state.dossierProgramme + "ambiances/" + name;
}

void SelectionList::readLibrary() {
  form_.File1.refresh();
  form_.Label20.caption = "Actuellement (" + std::to_string(form_.File1.lines().size()) +
                          ") Musiques d'Ambiances dans votre Bibliothèque Musicale";
}

void SelectionList::showCount() {
  const int rows = list_.rowCount();
  form_.Check1.enabled = rows > 0;
  form_.Label22.caption = rows < 2 ? "(" + std::to_string(rows) + ") Musique d'Ambiance"
                                   : "(" + std::to_string(rows) + ") Musiques d'Ambiances Sélectionnables";
}

void SelectionList::offerStart(int ticked) {
  form_.MyButton12.enabled = ticked > 0;
  selection_.listeChargee = ticked > 0 ? "ok" : "";
  form_.MyButton12.caption =
      ticked > 0 ? "Démarrer la Liste des (" + std::to_string(ticked) + ") Musiques Sélectionnées"
                 : "Aucune Musique Sélectionnée";
}

void SelectionList::ouvrir() {
  if (selection_.listeChargee != "ok") fill();
  form_.MyFrame5.visible = true;
}

void SelectionList::fill() {
  form_.File1.refresh();
  list_.clearRows();
  form_.Check1.value = 0;
  selection_.nbMusiquesCochees = 0;
  offerStart(0);
  list_.clearColumns();
  list_.addColumn({"Musiques d'Ambiances pour mes Séances d'Entrainement", 7000, platform::Alignment::Left});
  list_.addColumn({"X", 600, platform::Alignment::Left});
  for (const std::string& name : form_.File1.lines()) list_.addRow({name, "x"});
  showCount();
}

void SelectionList::fermer() {
  form_.MyFrame5.visible = false;
  form_.MyButton9.visible = true;
  selection_.listeChargee = list_.rowCount() > 0 ? "ok" : "";
}

int SelectionList::recount() {
  int& ticked = selection_.nbMusiquesCochees;
  ticked = 0;
  for (int row = 1; row <= list_.rowCount(); ++row) ticked += list_.checked(row) ? 1 : 0;
  if (ticked == 0) return 0;
  return ticked == list_.rowCount() ? 1 : 2;
}

void SelectionList::rowTicked() {
  const int extent = recount();
  offerStart(selection_.nbMusiquesCochees);
  form_.Check1.value = extent;
}

void SelectionList::tickAll() {
  if (form_.Check1.value == 2) return;
  const bool all = form_.Check1.value == 1;
  for (int row = 1; row <= list_.rowCount(); ++row) list_.setChecked(row, all);
  selection_.nbMusiquesCochees = all ? list_.rowCount() : 0;
  if (!all) form_.Check2.value = 0;
  offerStart(selection_.nbMusiquesCochees);
}

// Repetition goes with the ticks, whatever was clicked.
void SelectionList::tickRepeat() {
  form_.Check2.value = recount();
}

void SelectionList::openMenu(platform::MouseButton button) {
  const bool right = button == platform::MouseButton::Right;
  const bool overNames = list_.pointedColumn() == 1;
  form_.mnEcout.enabled = right && overNames && list_.rowCount() > 0;
  form_.mnsupress.enabled = right && list_.pointedColumn() == 2;
  if (!right) return;
  list_.select(list_.pointedRow());  // what the entries act on
  platform::MenuItem& menu = overNames ? form_.mnEcout : form_.mnsupress;
  if (menu.enabled) menu.popUp();
}

}  // namespace capture
