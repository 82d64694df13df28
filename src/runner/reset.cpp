#include "runner/reset.h"

#include <array>
#include <string>

#include "forms/main_form_words.h"
#include "forms/main_message.h"

namespace runner {

Reset::Reset(const context::Context& context, voice::Voice& voice, RideWaits& waits)
    : context_(context), voice_(voice), waits_(waits), main_(context.screens.main), state_(context.state) {
  main_.MyButton4.click.handle([this] { annulerSeance(); });
  main_.MyButton1.click.handle([this] { boutonStart(); });
}

void Reset::annulerSeance() {
  waits_.overtake();
  main_.Picture6.visible = false;
  main_.Timer10.enabled = false;
  if (state_.etatFin != "terminer" && state_.plan.started()) {
    forms::showIdlePicture(main_);
    voice_.dire("seanceAnnule.wav");
  }
  forms::offerPause(main_);
  forms::enableRideButtons(main_, false);
  if (!forms::showsEndMessage(main_)) forms::clearMessage(main_);
  forms::showIdlePicture(main_);
  main_.Label18.caption = "Prêt pour une Nouvelle Séance d'Entraînement";
  forms::hideRideFields(main_);
  main_.Timer1.enabled = false;
  main_.Timer2.enabled = false;
  state_.pauseDue = false;
  state_.ecouleSequence = 0;
  state_.plan.sequenceCourante = 0;
  state_.dureeSequence = model::timeValue("00:00:00");
  forms::showInDigits(main_, forms::noTime);
  for (platform::Label* text : forms::sequenceTexts(main_)) text->caption = "";
  forms::showInBoxes(forms::timeBoxes(main_), forms::noTime);
  if (state_.ecranVeilleActif == "oui") context_.outside.screenSaver.setActive(true);
  waits_.endHold();
}

void Reset::boutonStart() {
  main_.Timer4.enabled = false;  // the hand-over's own press, where this one comes before it
  if (state_.nbSequences == 0) {
    startManualChrono();
    return;
  }
  annulerSeance();
  if (forms::startOffered(main_)) {
    forms::offerStop(main_);
    forms::hide(forms::timeBoxes(main_));
    main_.Combo4.visible = false;
    forms::clearMessage(main_);
    forms::showCountdownLength(main_);
    main_.MyFrame2.visible = true;
    main_.MyButton3.enabled = true;
  } else {
    main_.MyButton3.caption = "Démarrer Chrono";
    waits_.run([this] {
      waits_.silenceMusic();
      forms::offerStart(main_);
      main_.Timer1.enabled = false;
    });
  }
}

// With nothing programmed the time boxes set the duration. The cancel at each start empties them, so they are
// filled again.
void Reset::startManualChrono() {
  const auto boxes = forms::timeBoxes(main_);
  const std::array<std::string, 3> chosen{boxes[0]->text, boxes[1]->text, boxes[2]->text};
  annulerSeance();
  forms::showInBoxes(boxes, chosen);
  state_.dureeSequence = model::timeValue(forms::timeInBoxes(boxes));
  state_.dureeTotale = state_.dureeSequence;
  if (state_.dureeSequence == 0) {
    forms::showNothingToRide(main_);
    return;
  }
  main_.Timer2.enabled = true;
}

}  // namespace runner
