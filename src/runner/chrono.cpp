#include "runner/chrono.h"

#include <algorithm>

#include "forms/main_form_words.h"
#include "forms/main_message.h"
#include "forms/sound_settings_words.h"
#include "model/numbers.h"
#include "model/training_model.h"
#include "platform/text.h"

namespace runner {
namespace {

constexpr std::size_t beatsLength = 3;    // "132" of "132-75 %"
constexpr std::size_t beforePercent = 4;  // "132-"

// The part of the target that display mode 2 shows: "75 %" of "132-75 %"; empty if the text is too short.
std::string percentPart(const std::string& target) {
  return platform::length(target) < beforePercent ? std::string() : platform::mid(target, beforePercent + 1);
}

}  // namespace

Chrono::Chrono(const context::Context& context, Advance& advance, RideWaits& waits, Suspend& suspend)
    : context_(context),
      advance_(advance),
      waits_(waits),
      suspend_(suspend),
      main_(context.screens.main),
      state_(context.state) {
  main_.Timer1.tick.handle([this] { tickChrono(); });
  main_.Timer3.tick.handle([this] { tickSurveillance(); });
  main_.Timer9.tick.handle([this] { tickEcranVeille(); });
  platform::once(main_.Timer10, [this] { tickPanneau(); });
  main_.Picture6.hover.handle([this] { hidePanelBriefly(); });
  main_.Label40.hover.handle([this] { hidePanelBriefly(); });
  main_.Label44.hover.handle([this] { hidePanelBriefly(); });
}

void Chrono::tickChrono() {
  waits_.run([this] { count(); });
}

void Chrono::count() {
  showTarget();
  countTotal();
  if (state_.dureeSequence != 0) {
    if (countSecond() == Sequence::GoesOn) return;
    main_.Label6.caption = "00";
    waits_.pause();
  }
  main_.Timer1.enabled = false;
  forms::showInBoxes(forms::timeBoxes(main_), forms::noTime);
  if (state_.nbSequences == 0) return;
  forms::hide(forms::restFields(main_));
  advance_.avancerSequence();
}

void Chrono::showTarget() {
  const std::string& target = state_.plan.current().planFreqCard;
  const bool inTurn = state_.modeAffichageFC == 3 && state_.alternanceFC != 0;
  if (state_.modeAffichageFC == 1 || (inTurn && state_.alternanceFC == 1)) {
    main_.Label44.caption = platform::left(target, beatsLength);
  } else if (state_.modeAffichageFC == 2 || inTurn) {
    main_.Label44.caption = percentPart(target);
  }
  if (inTurn) state_.alternanceFC = state_.alternanceFC == 1 ? 2 : 1;
}

// The total is read back from the label, so that it always stays in whole seconds.
void Chrono::countTotal() {
  // After a paused countdown the chrono ticks before the first sequence: no second is ridden yet.
  if (state_.nbSequences != 0 && !state_.plan.started()) return;
  if (!state_.plan.current().spoken()) {
    main_.Label40.caption = model::formatTime(state_.dureeTotale - state_.pasChrono);
  }
  state_.dureeTotale = model::timeValue(main_.Label40.caption.get());
}

Chrono::Sequence Chrono::countSecond() {
  forms::showPlace(main_, state_);
  state_.ecouleSequence += state_.pasChrono;
  // Converted to text and back, because sums of many seconds drift off whole seconds, which the test below
  // needs.
  const std::string left = model::formatTime(state_.dureeSequence - state_.ecouleSequence);
  state_.restantSequence = model::timeValue(left);
  forms::showInDigits(main_, forms::timeParts(left));
  state_.moitieSequence = model::formatTime(state_.dureeSequence / 2);
  const bool halfWay = model::timeValue(state_.moitieSequence) == state_.restantSequence;
  if (halfWay && forms::saysHalfWay(main_)) waits_.sayWithMusicHeld("miparcours.wav");
  const auto digits = forms::chronoDigits(main_);
  const bool runOut = std::all_of(digits.begin(), digits.end(), [](const auto* label) {
    return model::lenientNumber(label->caption.get()) == 0;
  });
  return runOut ? Sequence::HasRunOut : Sequence::GoesOn;
}

void Chrono::tickSurveillance() {
  // What is paused can always be resumed, whatever the row.
  forms::enableRideButtons(main_, state_.dureeSequence != 0 || forms::ridePaused(main_));
  suspend_.pauseIfDue();
  if (forms::saysNothing(main_)) forms::turnVoice(main_, false);
  main_.Timer3.rest({&state_.dureeSequence, &main_.Command7.caption, &main_.Command7.enabled,
                     &main_.MyButton1.enabled, &main_.MyButton4.enabled, &main_.Check2.value,
                     &main_.Check3.value, &main_.Check4.value, &main_.Check5.value, &main_.Check6.value,
                     &main_.Check7.value, &main_.Check8.value, &main_.Check9.value, &main_.Check13.value});
}

void Chrono::tickPanneau() {
  if (!forms::showsEndMessage(main_)) main_.Picture6.visible = true;
}

void Chrono::hidePanelBriefly() {
  // The large message is still there after a ride, when there is no panel to hide and to bring back.
  if (!main_.Picture6.visible && !main_.Timer10.enabled) return;
  main_.Picture6.visible = false;
  // Off and on, so that the second counts from the last move.
  main_.Timer10.enabled = false;
  main_.Timer10.enabled = true;
}

void Chrono::tickEcranVeille() {
  const bool active = context_.outside.screenSaver.active();
  state_.ecranVeilleActif = active ? "oui" : "non";
  if (active) context_.outside.screenSaver.setActive(false);
}

}  // namespace runner
