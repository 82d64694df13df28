#include "editor/cell_editor.h"

#include <algorithm>
#include <utility>

#include "editor/cell_texts.h"
#include "editor/layout.h"
#include "editor/row_rules.h"
#include "forms/creer_cycle_words.h"
#include "forms/lect_mci_words.h"
#include "forms/music_buttons.h"
#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/time_value.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace editor {
namespace {

namespace column = model::column;

constexpr const char* refusal = "Cette Zone n'est pas Modifiable";
const platform::Colour deletionColour = platform::Colour::rgb(0, 0, 128);

}  // namespace

CellEditor::CellEditor(const context::Context& context, heartrate::Calculator& calculator)
    : context_(context), calculator_(calculator), editor_(context.screens.editor), grid_(editor_.ListView1) {
  grid_.click.handle([this] { cliquerCellule(); });
  grid_.pressed.handle([this](platform::MouseButton button) { presserCellule(button); });
  grid_.pointerMoved.handle([this] { movePointer(); });
  grid_.headerClicked.handle([this](int) { recalerColonnes(editor_); });
  editor_.Command1.click.handle([this] { endEditing(); });
  editor_.Combo1.click.handle([this] { validerChoix(); });
  editor_.Combo1.enter.handle([this] { validerSaisie(); });
  editor_.Combo1.validate.handle([this] { ecouterAnnonce(); });
  for (platform::ComboBox* box : forms::durationBoxes(editor_)) {
    box->click.handle([this] { validerDuree(); });
    box->enter.handle([this] { validerDuree(); });
    box->validate.handle([this] { finishDuration(); });
  }
  editor_.Timer1.tick.handle([this] { placerEditeur(); });
  platform::once(editor_.Timer2, [this] { hideBadge(); });
  editor_.Timer3.tick.handle([this] { hideDurationPanelOutsideList(); });
}

void CellEditor::endEditing() {
  finishDuration();
  editor_.Picture2.visible = false;
  editor_.Combo1.visible = false;
  editor_.Timer1.enabled = false;
  editor_.Timer3.enabled = false;
}

void CellEditor::movePointer() {
  colonneCliquee_ = grid_.pointedColumn();
  editor_.Combo13.visible =
      grid_.rowCount() >= 2 && grid_.pointedRow() == 1 && grid_.pointedColumn() == column::heartRate;
}

void CellEditor::cliquerCellule() {
  if (grid_.rowCount() == 0) return;
  finishDuration();
  editor_.Timer3.enabled = false;
  editor_.Timer4.enabled = false;
  if (forms::musicLoaded(context_.screens.player)) context_.screens.player.Timer3.enabled = true;
  forms::showMusicStopped(context_.screens.main);
  if (context_.screens.volume.visible) context_.screens.volume.unload();
  colonneEdit_ = colonneCliquee_;
  editor_.Timer1.wake();
  const int row = grid_.selectedRow();
  ligneEdit_ = row;
  const std::string cell = grid_.text(row, colonneEdit_);
  editor_.Label24.visible = false;
  editor_.Label23.caption = columnHelp(colonneEdit_, cell);
  if (colonneEdit_ == column::sessionName) grid_.toolTip = cell;
  editor_.Timer3.enabled = colonneEdit_ == column::duration;
  editor_.Timer4.enabled = colonneEdit_ == column::duration;
  showDuration();
  if (colonneEdit_ == column::deleteMark) {
    if (model::lenientInteger(grid_.text(row, column::number)) != 1) {
      // Otherwise the editor of another cell would move to this one and overwrite its mark.
      endEditing();
      return;
    }
    editor_.Label23.caption = dashHelp;
    refuse();
    return;
  }
  fillReadOuts();
  editor_.Timer1.enabled = true;
  recalerColonnes(editor_);
  chargerListeCellule();
  if (colonneEdit_ == column::number) return;
  if (colonneEdit_ == column::duration) fillDurationBoxes();
  selectPresentText();
  placerEditeur();
}

// The duration of the selected row; zero for a row without one.
void CellEditor::showDuration() {
  const std::string& duration = grid_.text(grid_.selectedRow(), column::duration);
  editor_.Label7.caption = duration == model::noMeaning ? std::string(model::noDuration) : duration;
}

void CellEditor::fillReadOuts() {
  const std::pair<forms::Label*, int> fields[] = {
      {&editor_.Label10, column::sequence},  {&editor_.Label11, column::cadence},
      {&editor_.Label12, column::chainring}, {&editor_.Label15, column::gear},
      {&editor_.Label16, column::repeat},    {&editor_.Label17, column::times},
      {&editor_.Label18, column::duration},  {&editor_.Label32, column::heartRate}};
  for (const auto& [label, col] : fields) label->caption = grid_.text(grid_.selectedRow(), col);
}

void CellEditor::chargerListeCellule() {
  editor_.Combo1.setLines(cellEntries(editor_, colonneEdit_));
}

// Shows the cell's value in the editor; set from code, it does not count as a pick. An announcement from a
// session file is padded with blanks, which are no part of its file's name.
void CellEditor::selectPresentText() {
  const std::string& cell = grid_.text(grid_.selectedRow(), colonneEdit_);
  const bool padded = colonneEdit_ == column::announcement && cell != model::emptyCell;
  editor_.Combo1.text = padded ? platform::trim(cell) : cell;
}

void CellEditor::placerEditeur() {
  if (grid_.rowCount() == 0 || colonneEdit_ <= column::number) return;
  const int row = grid_.selectedRow();
  // The keyboard and the profile select rows without a click, but the editor belongs to the row that was
  // clicked.
  if (row != ligneEdit_) {
    endEditing();
    return;
  }
  const std::string cell = grid_.text(row, colonneEdit_);
  if (colonneEdit_ == column::cycleName || colonneEdit_ == column::sessionName) {
    refuse();
    return;
  }
  if (cell.starts_with("--")) {
    editor_.Label23.caption = dashHelp;
    refuse();
    return;
  }
  if (cell.starts_with("séance")) {
    endEditing();
    return;
  }
  if (row == 1) explainFirstRow();
  const bool untouchable = colonneEdit_ == column::duration
                               ? grid_.text(1, column::sessionName).starts_with("Nouvelle Séance")
                               : colonneEdit_ == column::heartRate && cell.starts_with("Fréq./Card.");
  if (row == 1 && untouchable) {
    refuse();
    return;
  }
  placeOverCell();
  editor_.Timer1.rest({&grid_.changes, &editor_.Combo1.visible, &editor_.Combo1.left, &editor_.Combo1.width,
                       &editor_.Picture1.visible, &editor_.Picture2.visible, &editor_.Label7.caption,
                       &editor_.Label23.caption, &editor_.Timer3.enabled});
}

void CellEditor::explainFirstRow() {
  if (colonneEdit_ == column::repeat) {
    editor_.Label23.caption =
        "Cette Zone Permet de Déterminer éventuellement la Répétition de la Séance d'Entrainement en cours...";
  } else if (colonneEdit_ == column::times) {
    editor_.Label23.caption =
        "Cette Zone Permet de Déterminer éventuellement le (Nombre de fois) que la Séance d'Entrainement Affichée doit-être Répétée...";
  } else if (colonneEdit_ == column::duration) {
    editor_.Label23.caption =
        "Cette Zone sur la Première Ligne ne peut être Modifiée, elle représente la Durée Totale de la Séance d'Entrainement qui est Listée ou que vous êtes en train de Réaliser...";
  }
}

void CellEditor::placeOverCell() {
  const int row = grid_.selectedRow();
  editor_.Picture1.visible = false;
  if (colonneEdit_ == column::duration) {
    editor_.Combo1.visible = false;
    if (row != 0) editor_.Picture2.visible = grid_.rowShows(row);
    showDuration();
    return;
  }
  editor_.Picture2.visible = false;
  editor_.Timer3.enabled = false;
  if (row == 0) return;
  editor_.Combo1.left = grid_.columnLeft(colonneEdit_);
  editor_.Combo1.width = grid_.column(colonneEdit_).width;
  editor_.Combo1.visible = grid_.rowShows(row);
}

// No editor stays open on a refused cell: hiding the badge later would hide it, too.
void CellEditor::refuse() {
  endEditing();
  showBadge(refusal, forms::refusalColour);
}

void CellEditor::showBadge(const std::string& text, const platform::Colour& colour) {
  editor_.Label4.caption = text;
  editor_.Label4.colour = colour;
  editor_.Picture1.left = grid_.columnLeft(grid_.pointedColumn());
  editor_.Picture1.visible = true;
  editor_.Timer2.enabled = true;
}

void CellEditor::hideBadge() {
  editor_.Combo1.visible = false;
  editor_.Picture1.visible = false;
}

void CellEditor::hideDurationPanelOutsideList() {
  editor_.Picture2.visible = grid_.rowShows(grid_.selectedRow());
  editor_.Timer3.rest({&grid_.changes, &editor_.Picture2.visible});
}

void CellEditor::presserCellule(platform::MouseButton button) {
  const bool onDelete = grid_.pointedColumn() == column::deleteMark;
  const std::string& cell = grid_.text(grid_.pointedRow(), grid_.pointedColumn());
  if (button == platform::MouseButton::Left && onDelete && cell == "x") {
    editor_.Label23.caption =
        "Si vous Cliquez sur la Croix d'une Ligne, vous pourrez la Supprimer en le Confirmant par le Clik-Droit de votre Sourie.";
    editor_.Picture2.visible = false;
    editor_.Timer3.enabled = false;
    showBadge("Click-Droit pour Supprimer", deletionColour);
    return;
  }
  editor_.Label4.caption = refusal;
  editor_.Label4.colour = forms::refusalColour;
  // The right button selects its row without a click, and an open editor would write into it.
  if (button == platform::MouseButton::Right) endEditing();
  const bool menu = button == platform::MouseButton::Right && onDelete;
  editor_.mnSupprimer.enabled = menu;
  if (menu) {
    grid_.select(grid_.pointedRow());  // one of several selected rows, too, is deleted alone
    editor_.mnSupprimer.popUp();
  } else if (button == platform::MouseButton::Right && grid_.pointedRow() > 0) {
    editor_.mnRows.popUp();
  }
}

void CellEditor::validerChoix() {
  if (colonneEdit_ <= column::number || grid_.selectedRow() == 0) return;
  const int row = grid_.selectedRow();
  const std::string picked = editor_.Combo1.text;
  if (colonneEdit_ == column::sequence) explainKind(picked);
  grid_.setText(row, colonneEdit_, picked);
  applyRowRules(grid_, row, editor_.Label7.caption);
  const bool repetition = colonneEdit_ == column::repeat || colonneEdit_ == column::times;
  if (repetition) repeatFirstRow(picked);
  if (colonneEdit_ == column::announcement) grid_.setText(row, column::announcement, picked);
  if (colonneEdit_ == column::heartRate) calculator_.viserCellule(row, picked);
  editor_.Combo1.visible = false;
  editor_.Timer1.enabled = false;
  if (colonneEdit_ == column::times) editor_.Timer4.enabled = true;
}

void CellEditor::explainKind(const std::string& picked) {
  if (picked != model::vocalAnnouncement) {
    editor_.Label23.caption = "Choisissez votre (Nom de Séquence).";
    return;
  }
  editor_.Timer4.enabled = true;
  editor_.Label24.visible = false;
  editor_.Label23.caption =
      "Si vous Choisissez (Annonce Vocale), cela signifie que vous en avez déjà Réalisé, vous devez donc la Choisir dans (l'avant-Dernière) colonne de Droite intitulée (Annonces).";
}

void CellEditor::repeatFirstRow(const std::string& picked) {
  if (applyRepetition(grid_, colonneEdit_, picked)) return;
  editor_.Combo1.text = colonneEdit_ == column::times ? "0" : "Non";
  editor_.Combo1.visible = false;
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Pas assez de Séquences...",
       "Pour Répéter une (Séance), elle doit être composée d'au moins (1 Séquences)...!"});
}

void CellEditor::validerSaisie() {
  if (colonneEdit_ <= column::number || grid_.selectedRow() == 0) return;
  grid_.setText(grid_.selectedRow(), colonneEdit_, editor_.Combo1.text);
  editor_.Timer1.enabled = false;
  editor_.Combo1.visible = false;
}

bool CellEditor::durationOpen() const {
  return colonneEdit_ == column::duration && ligneEdit_ > 1 && ligneEdit_ <= grid_.rowCount() &&
         editor_.Timer1.enabled;
}

// The duration as the boxes show it; a text from a file that is no duration counts as zero.
std::string CellEditor::presentDuration() const {
  return model::formatSeconds(model::parseSeconds(grid_.text(ligneEdit_, column::duration)).value_or(0));
}

void CellEditor::fillDurationBoxes() {
  forms::showInBoxes(forms::durationBoxes(editor_), forms::timeParts(presentDuration()));
}

// The duration in the boxes, where "7" counts as "07". A box whose text is not in its list goes back to the
// value of the cell.
std::string CellEditor::chosenDuration() {
  const std::string texts[] = {editor_.Combo2.text, editor_.Combo3.text, editor_.Combo4.text};
  fillDurationBoxes();
  std::size_t next = 0;
  for (platform::ComboBox* box : forms::durationBoxes(editor_)) {
    const std::string typed = platform::trim(texts[next++]);
    const std::vector<std::string>& lines = box->lines();
    if (const std::optional<std::string> line = model::lineFor(lines, typed)) {
      box->text = *line;
    } else if (!typed.empty()) {
      editor_.Label23.caption = "(" + typed + ") n'est pas dans la Liste, choisissez de (" + lines.front() +
                                ") à (" + lines.back() + ")...";
    }
  }
  return forms::timeInBoxes(forms::durationBoxes(editor_));
}

void CellEditor::validerDuree() {
  if (durationOpen()) grid_.setText(ligneEdit_, column::duration, chosenDuration());
}

// Sums at once, because the click that leaves a box turns the summing timer off.
void CellEditor::finishDuration() {
  if (!durationOpen()) return;
  const std::string present = presentDuration();
  const std::string chosen = chosenDuration();
  if (chosen == present) return;
  grid_.setText(ligneEdit_, column::duration, chosen);
  editor_.Timer4.tick();
}

// Leaving the cell plays the announcement that was chosen, and shows the volume dialog.
void CellEditor::ecouterAnnonce() {
  const std::string& chosen = editor_.Combo1.text;
  if (colonneEdit_ != column::announcement || platform::trim(chosen).empty()) return;
  if (!context_.screens.volume.visible) context_.screens.volume.show();
  context_.screens.player.Text1.text = context_.state.dossierAnnonces + chosen;
  context_.screens.player.Timer2.enabled = true;
}

}  // namespace editor
