#include "editor/cell_editor.h"

#include <algorithm>
#include <utility>

#include "editor/cell_texts.h"
#include "editor/layout.h"
#include "editor/row_rules.h"
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
const platform::Colour refusalColour = platform::Colour::rgb(255, 255, 255);
const platform::Colour deletionColour = platform::Colour::rgb(0, 0, 128);

}  // namespace

CellEditor::CellEditor(const context::Context& context, heartrate::Calculator& calculator)
    : context_(context), calculator_(calculator), form_(context.screens.editor), grid_(form_.ListView1) {
  grid_.click.handle([this] { cliquerCellule(); });
  grid_.pressed.handle([this](platform::MouseButton button) { presserCellule(button); });
  grid_.pointerMoved.handle([this] { movePointer(); });
  grid_.headerClicked.handle([this](int) { recalerColonnes(form_); });
  form_.Command1.click.handle([this] { endEditing(); });
  form_.Combo1.click.handle([this] { validerChoix(); });
  form_.Combo1.enter.handle([this] { validerSaisie(); });
  form_.Combo1.validate.handle([this] { ecouterAnnonce(); });
  for (auto* box : {&form_.Combo2, &form_.Combo3, &form_.Combo4}) {
    box->click.handle([this] { validerDuree(); });
    box->enter.handle([this] { validerDuree(); });
    box->validate.handle([this] { finishDuration(); });
  }
  form_.Timer1.tick.handle([this] { placerEditeur(); });
  platform::once(form_.Timer2, [this] { hideBadge(); });
  form_.Timer3.tick.handle([this] { keepDurationPanelInside(); });
}

void CellEditor::endEditing() {
  finishDuration();
  form_.Picture2.visible = false;
  form_.Combo1.visible = false;
  form_.Timer1.enabled = false;
  form_.Timer3.enabled = false;
}

void CellEditor::movePointer() {
  colonneCliquee_ = grid_.pointedColumn();
  form_.Combo13.visible =
      grid_.rowCount() >= 2 && grid_.pointedRow() == 1 && grid_.pointedColumn() == column::heartRate;
}

void CellEditor::cliquerCellule() {
  if (grid_.rowCount() == 0) return;
  finishDuration();
  form_.Timer3.enabled = false;
  form_.Timer4.enabled = false;
  if (forms::musicLoaded(context_.screens.player)) context_.screens.player.Timer3.enabled = true;
  forms::showMusicStopped(context_.screens.main);
  if (context_.screens.volume.visible) context_.screens.volume.unload();
  colonneEdit_ = colonneCliquee_;
  const int row = grid_.selectedRow();
  ligneEdit_ = row;
  const std::string cell = grid_.text(row, colonneEdit_);
  form_.Label24.visible = false;
  form_.Label23.caption = columnHelp(colonneEdit_, cell);
  if (colonneEdit_ == column::sessionName) grid_.toolTip = cell;
  form_.Timer3.enabled = colonneEdit_ == column::duration;
  form_.Timer4.enabled = colonneEdit_ == column::duration;
  showDuration();
  if (colonneEdit_ == column::deleteMark) {
    if (model::lenientInteger(grid_.text(row, column::number)) != 1) {
      // The editor of another cell would follow to this one, and write over its mark.
      endEditing();
      return;
    }
    form_.Label23.caption = dashHelp;
    refuse();
    return;
  }
  readOut();
  form_.Timer1.enabled = true;
  recalerColonnes(form_);
  chargerListeCellule();
  if (colonneEdit_ == column::number) return;
  if (colonneEdit_ == column::duration) fillDurationBoxes();
  selectPresentText();
  placerEditeur();
}

// The duration of the row in hand; a row without one stands at zero.
void CellEditor::showDuration() {
  const std::string& duration = grid_.text(grid_.selectedRow(), column::duration);
  form_.Label7.caption = duration == model::noMeaning ? std::string(model::noDuration) : duration;
}

void CellEditor::readOut() {
  const std::pair<forms::Label*, int> fields[] = {
      {&form_.Label10, column::sequence},  {&form_.Label11, column::cadence},
      {&form_.Label12, column::chainring}, {&form_.Label15, column::gear},
      {&form_.Label16, column::repeat},    {&form_.Label17, column::times},
      {&form_.Label18, column::duration},  {&form_.Label32, column::heartRate}};
  for (const auto& [label, col] : fields) label->caption = grid_.text(grid_.selectedRow(), col);
}

void CellEditor::chargerListeCellule() {
  form_.Combo1.setLines(cellEntries(form_, colonneEdit_));
}

// The entry that equals the cell; a value that the list lacks shows as typed. A text from code is no pick.
// A session file fills an announcement up with blanks, which are no part of its file's name.
void CellEditor::selectPresentText() {
  const std::string& cell = grid_.text(grid_.selectedRow(), colonneEdit_);
  const bool padded = colonneEdit_ == column::announcement && cell != model::emptyCell;
  form_.Combo1.text = padded ? platform::trim(cell) : cell;
}

void CellEditor::placerEditeur() {
  if (grid_.rowCount() == 0 || colonneEdit_ <= column::number) return;
  const int row = grid_.selectedRow();
  // The keyboard and the profile select without a click: what is in hand belongs to the row that was clicked.
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
    form_.Label23.caption = dashHelp;
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
}

void CellEditor::explainFirstRow() {
  if (colonneEdit_ == column::repeat) {
    form_.Label23.caption =
        "Cette Zone Permet de Déterminer éventuellement la Répétition de la Séance d'Entrainement en "
        "cours...";
  } else if (colonneEdit_ == column::times) {
    form_.Label23.caption =
        "Cette Zone Permet de Déterminer éventuellement le (Nombre de fois) que la Séance d'Entrainement "
        "Affichée doit-être Répétée...";
  } else if (colonneEdit_ == column::duration) {
    form_.Label23.caption =
        "Cette Zone sur la Première Ligne ne peut être Modifiée, elle représente la Durée Totale de la "
        "Séance "
        "d'Entrainement qui est Listée ou que vous êtes en train de Réaliser...";
  }
}

void CellEditor::placeOverCell() {
  const int row = grid_.selectedRow();
  form_.Picture1.visible = false;
  if (colonneEdit_ == column::duration) {
    form_.Combo1.visible = false;
    if (row != 0) form_.Picture2.visible = grid_.rowShows(row);
    showDuration();
    return;
  }
  form_.Picture2.visible = false;
  form_.Timer3.enabled = false;
  if (row == 0) return;
  form_.Combo1.left = grid_.columnLeft(colonneEdit_);
  form_.Combo1.width = grid_.column(colonneEdit_).width;
  form_.Combo1.visible = grid_.rowShows(row);
}

// No editor stays open on a refused cell, so that the badge can go by itself.
void CellEditor::refuse() {
  endEditing();
  showBadge(refusal, refusalColour);
}

void CellEditor::showBadge(const std::string& text, const platform::Colour& colour) {
  form_.Label4.caption = text;
  form_.Label4.colour = colour;
  form_.Picture1.left = grid_.columnLeft(grid_.pointedColumn());
  form_.Picture1.visible = true;
  form_.Timer2.enabled = true;
}

void CellEditor::hideBadge() {
  form_.Combo1.visible = false;
  form_.Picture1.visible = false;
}

void CellEditor::keepDurationPanelInside() {
  form_.Picture2.visible = grid_.rowShows(grid_.selectedRow());
}

void CellEditor::presserCellule(platform::MouseButton button) {
  const bool onDelete = grid_.pointedColumn() == column::deleteMark;
  const std::string& cell = grid_.text(grid_.pointedRow(), grid_.pointedColumn());
  if (button == platform::MouseButton::Left && onDelete && cell == "x") {
    form_.Label23.caption =
        "Si vous Cliquez sur la Croix d'une Ligne, vous pourrez la Supprimer en le Confirmant par le "
        "Clik-Droit "
        "de votre Sourie.";
    form_.Picture2.visible = false;
    form_.Timer3.enabled = false;
    showBadge("Click-Droit pour Supprimer", deletionColour);
    return;
  }
  form_.Label4.caption = refusal;
  form_.Label4.colour = refusalColour;
  // The right button selects its row without a click: the editor that is open would write there.
  if (button == platform::MouseButton::Right) endEditing();
  const bool menu = button == platform::MouseButton::Right && onDelete;
  form_.mnSupprimer.enabled = menu;
  if (menu) form_.mnSupprimer.popUp();
}

void CellEditor::validerChoix() {
  if (colonneEdit_ <= column::number || grid_.selectedRow() == 0) return;
  const int row = grid_.selectedRow();
  const std::string picked = form_.Combo1.text;
  if (colonneEdit_ == column::sequence) explainKind(picked);
  grid_.setText(row, colonneEdit_, picked);
  applyRowRules(grid_, row, form_.Label7.caption);
  const bool repetition = colonneEdit_ == column::repeat || colonneEdit_ == column::times;
  if (repetition) repeatFirstRow(picked);
  if (colonneEdit_ == column::announcement) grid_.setText(row, column::announcement, picked);
  if (colonneEdit_ == column::heartRate) calculator_.viserCellule(row, picked);
  form_.Combo1.visible = false;
  form_.Timer1.enabled = false;
  if (colonneEdit_ == column::times) form_.Timer4.enabled = true;
}

void CellEditor::explainKind(const std::string& picked) {
  if (picked != model::vocalAnnouncement) {
    form_.Label23.caption = "Choisissez votre (Nom de Séquence).";
    return;
  }
  form_.Timer4.enabled = true;
  form_.Label24.visible = false;
  form_.Label23.caption =
      "Si vous Choisissez (Annonce Vocale), cela signifie que vous en avez déjà Réalisé, vous devez donc la "
      "Choisir dans (l'avant-Dernière) colonne de Droite intitulée (Annonces).";
}

void CellEditor::repeatFirstRow(const std::string& picked) {
  if (applyRepetition(grid_, colonneEdit_, picked)) return;
  form_.Combo1.text = colonneEdit_ == column::times ? "0" : "Non";
  form_.Combo1.visible = false;
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Pas assez de Séquences...",
       "Pour Répéter une (Séance), elle doit être composée d'au moins (1 Séquences)...!"});
}

void CellEditor::validerSaisie() {
  if (colonneEdit_ <= column::number || grid_.selectedRow() == 0) return;
  grid_.setText(grid_.selectedRow(), colonneEdit_, form_.Combo1.text);
  form_.Timer1.enabled = false;
  form_.Combo1.visible = false;
}

bool CellEditor::durationOpen() const {
  return colonneEdit_ == column::duration && ligneEdit_ > 1 && ligneEdit_ <= grid_.rowCount() &&
         form_.Timer1.enabled;
}

// As the boxes show it. What is no duration, as a file may bring it, stands there as zero.
std::string CellEditor::presentDuration() const {
  return model::formatSeconds(model::parseSeconds(grid_.text(ligneEdit_, column::duration)).value_or(0));
}

void CellEditor::fillDurationBoxes() {
  const std::string duration = presentDuration();
  form_.Combo2.text = platform::left(duration, 2);
  form_.Combo3.text = platform::mid(duration, 4, 2);
  form_.Combo4.text = platform::mid(duration, 7, 2);
}

// What the boxes stand for, "7" being "07". A box that stands for no entry of its list goes back to the
// cell's.
std::string CellEditor::chosenDuration() {
  const std::string texts[] = {form_.Combo2.text, form_.Combo3.text, form_.Combo4.text};
  fillDurationBoxes();
  std::size_t next = 0;
  for (auto* box : {&form_.Combo2, &form_.Combo3, &form_.Combo4}) {
    const std::string typed = platform::trim(texts[next++]);
    const std::vector<std::string>& lines = box->lines();
    if (const std::optional<std::string> line = model::lineFor(lines, typed)) {
      box->text = *line;
    } else if (!typed.empty()) {
      form_.Label23.caption = "(" + typed + ") n'est pas dans la Liste, choisissez de (" + lines.front() +
                              ") à (" + lines.back() + ")...";
    }
  }
  return form_.Combo2.text.get() + ":" + form_.Combo3.text.get() + ":" + form_.Combo4.text.get();
}

void CellEditor::validerDuree() {
  if (durationOpen()) grid_.setText(ligneEdit_, column::duration, chosenDuration());
}

// The click that leaves a box also ends the time in which the total follows.
void CellEditor::finishDuration() {
  if (!durationOpen()) return;
  const std::string present = presentDuration();
  const std::string chosen = chosenDuration();
  if (chosen == present) return;
  grid_.setText(ligneEdit_, column::duration, chosen);
  form_.Timer4.tick();
}

// The announcement that was chosen is played on leaving its cell, with the volume at hand.
void CellEditor::ecouterAnnonce() {
  const std::string& chosen = form_.Combo1.text;
  if (colonneEdit_ != column::announcement || platform::trim(chosen).empty()) return;
  if (!context_.screens.volume.visible) context_.screens.volume.show();
  context_.screens.player.Text1.text = context_.state.dossierAnnonces + chosen;
  context_.screens.player.Timer2.enabled = true;
}

}  // namespace editor
