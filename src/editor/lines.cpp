#include "editor/lines.h"

#include <algorithm>

#include "editor/layout.h"
#include "forms/creer_cycle_words.h"
#include "forms/lect_mci_words.h"
#include "forms/music_buttons.h"
#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/training_model.h"

namespace editor {

namespace column = model::column;

Lines::Lines(const context::Context& context)
    : context_(context),
      editor_(context.screens.editor),
      grid_(editor_.ListView1),
      main_(context.screens.main),
      state_(context.state) {
  editor_.MyButton2.click.handle([this] { creerSeance(); });
  editor_.MyButton3.click.handle([this] { basculerCycle(); });
  editor_.MyButton1.click.handle([this] { ajouterSequence(); });
  editor_.Command4.click.handle([this] { viderListe(); });
  editor_.mnsupprim.click.handle([this] { supprimerLigne(); });
  editor_.mnAjouterLigne.click.handle([this] { insererLigne(); });
}

void Lines::preambule() {
  editor_.Command1.click();
  if (forms::musicLoaded(context_.screens.player)) context_.screens.player.Timer3.enabled = true;
  forms::showMusicStopped(context_.screens.main);
  if (context_.screens.volume.visible) context_.screens.volume.unload();
}

void Lines::creerSeance() {
  preambule();
  editor_.Label8.caption = "Aucune Séance Programmée";
  main_.MyFrame1.caption = "Aucune Séance Programmée";
  recalerColonnes(editor_);
  editor_.Label7.caption = "00:00:00";
  if (grid_.rowCount() > 0) {
    // A new session ends cycle mode, too; its column stays until the list is rebuilt.
    grid_.setColumnWidth(column::cycleName, forms::cycleMode(editor_) ? model::cycleColumnWidth : 0);
    forms::showCycleMode(editor_, false);
    if (model::lastRowUnfinished(grid_)) {
      showRefusal("Vous voulez Créer une Nouvelle (Séance), mais l'Actuelle n'est pas Terminée...!",
                  "Vous devez finir celle en cours...");
      return;
    }
  }
  editor_.Timer1.enabled = false;
  editor_.Combo1.visible = false;
  editor_.Label9.caption = "Création d'une Séance d'Entraînement";
  buildList();
  editor_.Timer3.enabled = false;
  editor_.Picture2.visible = false;
  grid_.select(1);
  recalerColonnes(editor_);
  showTotalTitle();
}

void Lines::buildList() {
  grid_.clearRows();
  grid_.clearColumns();
  for (platform::GridColumn& made : model::gridColumns(forms::cycleMode(editor_)))
    grid_.addColumn(std::move(made));
  editor_.File2.refresh();
  grid_.addRow(model::firstRow());
  styleRow(grid_, 1);
  grid_.addRow(model::handMadeRow(2, std::string(model::noMeaning)));
  styleRow(grid_, 2);
}

void Lines::showTotalTitle() {
  const std::string name = state_.seanceTitre.empty() ? "Aucune Séance Programmée" : state_.seanceTitre;
  const std::string title = "(" + name + ")  =>  (Durée : " + grid_.text(1, column::duration) + ")";
  editor_.Label8.caption = title;
  main_.MyFrame1.caption = title;
}

void Lines::viderListe() {
  preambule();
  main_.Timer6.enabled = true;
  state_.seanceTitre = "";
  grid_.clearRows();
  editor_.Label8.caption = "Ventoria";
  main_.MyFrame1.caption = "Ventoria";
  creerSeance();
}

void Lines::showRefusal(const std::string& text, const std::string& title) {
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, title, text});
}

void Lines::refuseAddition() {
  editor_.Label24.visible = false;
  editor_.Label23.caption =
      "Pour Ajouter une Nouvelle Séquence à votre Liste, vous devez d'abord finir celle en cours.";
  showRefusal("Vous voulez Ajouter une Nouvelle (Séquence), mais l'Actuelle n'est pas Terminée...!",
              "Données Manquantes...");
}

bool Lines::announcementMissing() const {
  const int last = grid_.rowCount();
  return grid_.text(last, column::sequence) == model::vocalAnnouncement &&
         grid_.text(last, column::announcement) == model::emptyCell;
}

// Whether another row may follow the last one. An announcement needs no duration, and that of the first row
// is the total.
bool Lines::lastRowClosed() const {
  const int last = grid_.rowCount();
  const std::string& sequence = grid_.text(last, column::sequence);
  if (sequence == model::vocalAnnouncement && !grid_.text(last, column::announcement).empty()) return true;
  if (sequence == model::emptyCell) return false;
  return last <= 1 || grid_.text(last, column::duration) != model::noDuration;
}

void Lines::prepareOwnRows() {
  preambule();
  recalerColonnes(editor_);
  editor_.Label7.caption = "00:00:00";
  editor_.Label9.caption = "Ajouter une Séquence d'Entraînement";
}

void Lines::ajouterSequence() {
  prepareOwnRows();
  if (announcementMissing()) {
    editor_.Label24.visible = false;
    editor_.Label23.caption =
        "Pour Ajouter une Nouvelle Séquence à votre Liste, vous devez d'abord finir celle en cours, il vous reste à choisir l'annonce en question...";
    return;
  }
  if (!lastRowClosed()) {
    refuseAddition();
    return;
  }
  forgetNameForOwnRows();
  appendBlankRow(model::row_style::unfinished);
  grid_.reveal(grid_.rowCount());
  grid_.select(grid_.rowCount());
  grid_.focus();
}

void Lines::forgetNameForOwnRows() {
  int compteLignes = 0;
  for (int row = 2; row <= grid_.rowCount(); ++row) {
    if (!grid_.text(row, column::sessionName).starts_with(model::noMeaning)) ++compteLignes;
  }
  if (compteLignes == 0) return;
  state_.seanceTitre = model::untitledSession;
  editor_.Label8.caption = std::string(model::untitledSession);
  main_.MyFrame1.caption = "Ventoria";
}

void Lines::appendBlankRow(const platform::CellStyle& style) {
  grid_.addRow(model::handMadeRow(grid_.rowCount() + 1, std::string(model::endOfList)));
  grid_.setStyle(grid_.rowCount(), column::sessionName, column::deleteMark, style);
}

void Lines::ajouterSequenceVariante() {
  prepareOwnRows();
  const bool spoken = grid_.text(grid_.rowCount(), column::sequence) == model::vocalAnnouncement;
  if (!spoken && model::lastRowUnfinished(grid_)) {
    refuseAddition();
    return;
  }
  appendBlankRow(model::row_style::finished);
  recalerColonnes(editor_);
}

// Adds a row at the end, then moves the rows from the wanted place on behind it. The place comes from the
// number in the first column, which is never renumbered and so, after deletions, is not the row's real place.
void Lines::insererLigne() {
  const int selected = grid_.selectedRow();
  if (selected == 0) return;
  const int pointed = grid_.pointedRow();
  const int place = model::lenientInteger(grid_.text(selected, column::number)) + 1;
  const int before = grid_.rowCount();
  ajouterSequence();
  if (grid_.rowCount() == pointed + 1) return;
  for (int row = place; row <= before; ++row) {
    std::vector<std::string> cells{std::to_string(row)};
    for (int c = column::cycleName; c <= model::columnCount; ++c) cells.push_back(grid_.text(row, c));
    grid_.addRow(std::move(cells));
  }
  for (int moved = place; moved <= before; ++moved) grid_.removeRow(place);
  // If the new row was refused, the rows have been moved all the same, perhaps with the selected one.
  if (grid_.rowCount() == before) {
    grid_.select(selected);
  } else {
    grid_.reveal(grid_.selectedRow());  // the view is still at the end, where the row was made
  }
}

void Lines::supprimerLigne() {
  preambule();
  if (grid_.selectedRow() == 0) return;
  if (grid_.selectedRow() == 1) {
    showRefusal("La Première ligne ne peut pas être Supprimée...!", "Suppression de Ligne...");
    return;
  }
  removeRows({grid_.selectedRow()});
}

void Lines::removeRows(const std::vector<int>& rows) {
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) grid_.removeRow(*row);
  if (grid_.text(grid_.rowCount(), column::sessionName).starts_with(model::noMeaning)) {
    grid_.removeRow(grid_.rowCount());
  }
  grid_.select(std::min(rows.front(), grid_.rowCount()));
  grid_.reveal(grid_.selectedRow());
  grid_.focus();
}

void Lines::basculerCycle() {
  preambule();
  editor_.Label9.caption = "Création d'un Cycle d'Entraînement";
  if (!forms::cycleMode(editor_)) {
    forms::showCycleMode(editor_, true);
    forms::offerToAdd(editor_, true);
    grid_.setColumnWidth(column::cycleName, model::cycleColumnWidth);
    sizeGrid(editor_);
  } else {
    editor_.Timer4.enabled = false;
    grid_.clearRows();
    forms::showCycleMode(editor_, false);
    forms::offerToAdd(editor_, false);
    editor_.Label9.caption = "Création d'une Séance d'Entraînement";
    grid_.setColumnWidth(column::cycleName, 0);
    grid_.setColumnWidth(column::sessionName, 0);
    creerSeance();
  }
  grid_.setColumnWidth(column::sequence, 1250);
  recalerColonnes(editor_);
}

}  // namespace editor
