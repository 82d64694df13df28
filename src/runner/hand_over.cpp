#include "runner/hand_over.h"

#include "forms/lect_mci_words.h"
#include "forms/main_form_words.h"
#include "model/grid_rows.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace runner {

HandOver::HandOver(const context::Context& context, RideWaits& waits)
    : context_(context),
      waits_(waits),
      main_(context.screens.main),
      editor_(context.screens.editor),
      state_(context.state) {
  editor_.MyButton5.click.handle([this] { validerSeance(); });
}

void HandOver::validerSeance() {
  if (forms::ridePaused(main_)) {
    // A paused ride keeps its plan; the edits stay in the grid.
    prepareOtherForms();
    editor_.mnSortir.click();
  } else if (!refuseWrongDuration()) {
    begin(model::rideOrder(editor_.ListView1));
  }
}

void HandOver::begin(const model::RideOrder& order) {
  prepareOtherForms();
  resetRide();
  editor_.hide();
  main_.show();
  state_.nbSequences = order.sequences;
  state_.nbSeances = order.passes;
  state_.dureeTotale = order.total;
  if (order.plan.rows.size() < 2) {
    main_.MyButton4.click();
    forms::showNothingToRide(main_);
    return;
  }
  state_.plan = order.plan;
  // Any duration enables the start button; the first sequence replaces it.
  state_.dureeSequence = model::timeValue("00:00:03");
  showTitle();
  main_.Timer4.enabled = true;
  main_.Timer9.enabled = true;
}

bool HandOver::refuseWrongDuration() {
  editor_.Command1.click();  // what is still being typed counts
  platform::Grid& grid = editor_.ListView1;
  int row = 2;
  while (row <= grid.rowCount() && (!model::isRidden(grid, row) || model::hasDuration(grid, row))) ++row;
  if (row > grid.rowCount()) return false;
  editor_.Timer6.tick();  // paints it red and hides the start button
  grid.select(row);
  grid.reveal(row);
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Durée à Corriger...",
       "La Ligne (" + std::to_string(row) + ") de la Liste, (" +
           platform::trim(grid.text(row, model::column::sequence)) + "), n'a pas de Durée valable : (" +
           grid.text(row, model::column::duration) +
           ").\nChoisissez-la en (H:M:S) ou Supprimez la Ligne, puis Démarrez..."});
  return true;
}

void HandOver::prepareOtherForms() {
  editor_.Command1.click();
  if (forms::musicLoaded(context_.screens.player)) context_.screens.player.Timer3.enabled = true;
  main_.MyButton19.visible = !context_.screens.announcements.File1.lines().empty();
  main_.MyButton21.visible = false;
  if (context_.screens.volume.visible) context_.screens.volume.unload();
  if (state_.dureeChrono.empty()) state_.dureeChrono = std::to_string(forms::usualCountdown);
  main_.Combo5.text = state_.dureeChrono;
  forms::showCountdownLength(main_);
}

void HandOver::resetRide() {
  // A ride may be under way, because the menu leads to the editor at any time.
  waits_.overtake();
  waits_.forgetHold();
  main_.Timer1.enabled = false;
  main_.Timer2.enabled = false;
  forms::show(forms::chronoDigits(main_));
  main_.Image4.visible = true;
  state_.plan.sequenceCourante = 0;
  state_.seanceCourante = 0;
  state_.nbSequences = 0;
  forms::offerStart(main_);
  forms::offerPause(main_);
  state_.sonSeance = "";
}

void HandOver::showTitle() {
  if (state_.seanceTitre.empty()) state_.seanceTitre = model::untitledSession;
  const std::string total = model::formatTime(state_.dureeTotale);
  main_.Label19.caption = "(" + state_.seanceTitre + ")\n(Durée = " + total + ")";
  const std::string title = "(" + state_.seanceTitre + ")  =>  (Durée : " + total + ")";
  editor_.Label8.caption = title;
  main_.MyFrame1.caption = title;
}

}  // namespace runner
