#include "runner/countdown.h"

#include "forms/main_form_words.h"
#include "forms/main_message.h"
#include "forms/sound_settings_words.h"
#include "model/numbers.h"
#include "platform/text.h"

namespace runner {

Countdown::Countdown(const context::Context& context, voice::Voice& voice, Advance& advance, EndTime& endTime)
    : context_(context),
      voice_(voice),
      advance_(advance),
      endTime_(endTime),
      main_(context.screens.main),
      state_(context.state) {
  main_.MyButton3.click.handle([this] { lancerCompteRebours(); });
  main_.Timer2.tick.handle([this] { tickCompteRebours(); });
  main_.Command7.click.handle([this] { basculerPause(); });
  main_.MyButton2.click.handle([this] { leaveFrame(); });
  main_.MyButton5.click.handle([this] { goToEditor(); });
  main_.MyButton9.click.handle([this] {
    openFrame();
    main_.MyFrame2.visible = false;
    main_.Command7.enabled = true;
    main_.MyButton4.enabled = true;
  });
  main_.Combo5.click.handle([this] { chooseLength(); });
  main_.Combo5.enter.handle([this] { applyTypedLength(); });
  main_.Combo5.validate.handle([this] { applyTypedLength(); });
  for (platform::ComboBox* box : forms::timeBoxes(main_)) {
    box->click.handle([this] { chooseManualTime(); });
    box->enter.handle([this] { applyTypedTime(); });
    box->validate.handle([this] { applyTypedTime(); });
  }
  platform::once(main_.Timer4, [this] { main_.MyButton1.click(); });
  platform::once(main_.Timer6, [this] { main_.MyButton4.click(); });
}

// The frame stands there before the press that opens it has come, and the rider may be quicker: that press
// would end what he has begun.
void Countdown::openFrame() {
  if (main_.Timer4.enabled) main_.MyButton1.click();
}

void Countdown::lancerCompteRebours() {
  openFrame();
  if (state_.nbSequences == 0 && state_.dureeSequence == 0) {
    forms::showNothingToRide(main_);
    return;
  }
  replaceInvalidLength();
  endTime_.countdownBegins();
  forms::offerPause(main_);
  main_.Label9.caption = main_.Combo5.text;
  main_.Timer2.enabled = true;
  main_.MyButton3.enabled = false;
  forms::showDigits(main_);
  if (!forms::voiceOn(main_)) return;
  state_.musiqueSuit = "non";
  forms::showMessage(main_, "Démarrage Séance d'Entraînement");
  main_.Image7.visible = false;
  voice_.dire("topdepartentrainement.wav");
}

void Countdown::tickCompteRebours() {
  main_.Label9.visible = false;
  const int left = forms::countdownLeft(main_) - 1;
  main_.Label9.caption = std::to_string(left);
  main_.Label9.visible = true;
  if (state_.nbSequences != 0) {
    if (left != 0) return;
    main_.MyFrame2.visible = false;
    forms::hideTimeBoxesUnderSettings(main_);
    main_.Combo4.visible = false;
    if (forms::voiceOn(main_) && state_.nbSequences > 0) {
      main_.Label18.caption = "Séance en Cours";
      voice_.dire("dementrainement.wav");
      context_.screens.announcements.Timer12.enabled = true;
    }
  }
  main_.MyFrame2.visible = false;
  forms::hideTimeBoxesUnderSettings(main_);
  main_.Timer2.enabled = false;
  forms::clearMessage(main_);
  main_.Label40.caption = model::formatTime(state_.dureeTotale);
  main_.Picture6.visible = true;
  if (state_.nbSequences == 0) {
    // A manual chrono starts without the button that shows the digits.
    forms::showDigits(main_);
    main_.Timer1.enabled = true;
  } else {
    advance_.avancerSequence();
  }
}

void Countdown::basculerPause() {
  if (!forms::ridePaused(main_)) {
    if (!forms::rideUnderWay(main_, state_)) return;
    // An announcement has no time that could be stopped: it ends by itself, and the pause takes effect on the
    // row after it.
    if (state_.dureeSequence != 0) main_.Timer1.enabled = false;
    main_.Timer2.enabled = false;
    endTime_.pauseBegins();
    if (forms::voiceOn(main_)) voice_.dire("pausedemande.wav");
    forms::offerResume(main_);
  } else {
    voice_.dire("repriseentrainement.wav");
    endTime_.pauseEnds();
    // While a boundary is still speaking, the chrono is left to it.
    main_.Timer1.enabled = !advance_.holdsTime();
    main_.Timer2.enabled = false;
    main_.Timer10.enabled = true;
    forms::offerPause(main_);
    forms::showDigits(main_);
  }
}

void Countdown::leaveFrame() {
  openFrame();
  main_.MyButton4.click();
  forms::hide(forms::timeBoxes(main_));
  voice_.dire("seanceAnnule.wav");
  main_.MyFrame2.visible = false;
  forms::hideTimeBoxesUnderSettings(main_);
}

void Countdown::chooseLength() {
  main_.MyButton10.enabled = forms::keepsCountdownLength(main_) && main_.Combo5.text != state_.dureeChrono;
  main_.Label9.caption = main_.Combo5.text;
}

void Countdown::chooseManualTime() {
  state_.dureeSequence = model::timeValue(forms::timeInBoxes(forms::timeBoxes(main_)));
  state_.ecouleSequence = 0;
}

// A countdown of zero or less would never end.
void Countdown::replaceInvalidLength() {
  if (forms::countdownLength(main_) >= 1) return;
  main_.Combo5.text = state_.dureeChrono.empty() ? std::to_string(forms::usualCountdown) : state_.dureeChrono;
}

// A countdown that runs keeps its number.
void Countdown::applyTypedLength() {
  replaceInvalidLength();
  if (!forms::countdownRuns(main_)) chooseLength();
}

void Countdown::applyTypedTime() {
  if (!main_.Combo1.visible) return;  // in a ride the boxes show what is ridden
  for (platform::ComboBox* box : forms::timeBoxes(main_)) {
    box->text = model::lineFor(box->lines(), platform::trim(box->text.get())).value_or("00");
  }
  chooseManualTime();
}

void Countdown::goToEditor() {
  main_.Picture6.visible = false;
  main_.Timer10.enabled = false;
  if (!forms::ridePaused(main_)) main_.MyButton4.click();
  main_.mnCreat.click();
}

}  // namespace runner
