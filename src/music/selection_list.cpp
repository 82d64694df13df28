#include "music/selection_list.h"

namespace music {

SelectionList::SelectionList(const context::Context& context, Selection& selection)
    : context_(context),
      library_(context.screens.announcements),
      list_(library_.ListView1),
      selection_(selection) {
  library_.Command8.click.handle([this] { ouvrir(); });
  library_.MyButton11.click.handle([this] { fermer(); });
  library_.MyButton13.click.handle([this] {
    list_.clearRows();
    library_.MyButton11.click();
  });
  list_.rowTicked.handle([this](int) { rowTicked(); });
  list_.pressed.handle([this](platform::MouseButton button) { openMenu(button); });
  library_.Check1.click.handle([this] { tickAll(); });
  library_.Check2.click.handle([this] { tickRepeat(); });
}

std::string SelectionList::pathOf(const std::string& name) const {
  return context_.state.dossierProgramme + "ambiances/" + name;
}

void SelectionList::readLibrary() {
  library_.File1.refresh();
  library_.Label20.caption = "Actuellement (" + std::to_string(library_.File1.lines().size()) +
                             ") Musiques d'Ambiances dans votre Bibliothèque Musicale";
}

void SelectionList::showCount() {
  const int rows = list_.rowCount();
  library_.Check1.enabled = rows > 0;
  library_.Label22.caption = rows < 2 ? "(" + std::to_string(rows) + ") Musique d'Ambiance"
                                      : "(" + std::to_string(rows) + ") Musiques d'Ambiances Sélectionnables";
}

void SelectionList::offerStart(int ticked) {
  library_.MyButton12.enabled = ticked > 0;
  selection_.listeChargee = ticked > 0 ? "ok" : "";
  library_.MyButton12.caption =
      ticked > 0 ? "Démarrer la Liste des (" + std::to_string(ticked) + ") Musiques Sélectionnées"
                 : "Aucune Musique Sélectionnée";
}

void SelectionList::ouvrir() {
  if (selection_.listeChargee != "ok") fill();
  library_.MyFrame5.visible = true;
}

void SelectionList::fill() {
  library_.File1.refresh();
  list_.clearRows();
  library_.Check1.value = 0;
  selection_.nbMusiquesCochees = 0;
  offerStart(0);
  list_.clearColumns();
  list_.addColumn({"Musiques d'Ambiances pour mes Séances d'Entrainement", 7000, platform::Alignment::Left});
  list_.addColumn({"X", 600, platform::Alignment::Left});
  for (const std::string& name : library_.File1.lines()) list_.addRow({name, "x"});
  showCount();
}

void SelectionList::fermer() {
  library_.MyFrame5.visible = false;
  library_.MyButton9.visible = true;
  selection_.listeChargee = list_.rowCount() > 0 ? "ok" : "";
}

int SelectionList::recount() {
  int ticked = 0;
  for (int row = 1; row <= list_.rowCount(); ++row) ticked += list_.checked(row) ? 1 : 0;
  selection_.nbMusiquesCochees = ticked;
  if (ticked == 0) return 0;
  return ticked == list_.rowCount() ? 1 : 2;
}

void SelectionList::rowTicked() {
  const int extent = recount();
  offerStart(selection_.nbMusiquesCochees);
  library_.Check1.value = extent;
}

void SelectionList::tickAll() {
  if (library_.Check1.value == 2) return;
  const bool all = library_.Check1.value == 1;
  for (int row = 1; row <= list_.rowCount(); ++row) list_.setChecked(row, all);
  selection_.nbMusiquesCochees = all ? list_.rowCount() : 0;
  if (!all) library_.Check2.value = 0;
  offerStart(selection_.nbMusiquesCochees);
}

// The box is set from the ticks, whatever the rider has clicked: 0 without any, 1 with all, 2 with some.
void SelectionList::tickRepeat() {
  library_.Check2.value = recount();
}

void SelectionList::openMenu(platform::MouseButton button) {
  const bool right = button == platform::MouseButton::Right;
  const bool overNames = list_.pointedColumn() == 1;
  library_.mnEcout.enabled = right && overNames && list_.rowCount() > 0;
  library_.mnsupress.enabled = right && list_.pointedColumn() == 2;
  if (!right) return;
  list_.select(list_.pointedRow());  // what the entries act on
  platform::MenuItem& menu = overNames ? library_.mnEcout : library_.mnsupress;
  if (menu.enabled) menu.popUp();
}

}  // namespace music
