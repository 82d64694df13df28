#include "runner/chrono.h"

#include <algorithm>

#include "model/numbers.h"
#include "model/training_model.h"
#include "platform/text.h"
#include "runner/visibility.h"

namespace runner {
namespace {

constexpr std::size_t beatsLength = 3;    // "132" of "132-75 %"
constexpr std::size_t beforePercent = 4;  // "132-"

// The part of the target that display mode 2 shows: "75 %" of "132-75 %"; empty if the text is too short.
std::string percentPart(const std::string& target) {
  return platform::length(target) < beforePercent ? std::string() : platform::mid(target, beforePercent + 1);
}

}  // namespace

Chrono::Chrono(const context::Context& context, Advance& advance, RideWaits& waits)
    : context_(context),
      advance_(advance),
      waits_(waits),
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
  for (auto* box : {&main_.Combo1, &main_.Combo2, &main_.Combo3}) box->text = "00";
  if (state_.nbSequences == 0) return;
  hide({&main_.Label18, &main_.Image4});
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
  if (state_.nbSequences != 0 && state_.plan.sequenceCourante == 0) return;
  if (state_.plan.current().planSequence != model::vocalAnnouncement) {
    main_.Label40.caption = model::formatTime(state_.dureeTotale - state_.pasChrono);
  }
  state_.dureeTotale = model::timeValue(main_.Label40.caption.get());
}

Chrono::Sequence Chrono::countSecond() {
  main_.Label16.caption =
      std::to_string(state_.plan.sequenceCourante) + "/" + std::to_string(state_.nbSequences);
  state_.ecouleSequence += state_.pasChrono;
  // Converted to text and back, because sums of many seconds drift off whole seconds, which the test below
  // needs.
  const std::string left = model::formatTime(state_.dureeSequence - state_.ecouleSequence);
  state_.restantSequence = model::timeValue(left);
  main_.Label4.caption = platform::left(left, 2);
  main_.Label5.caption = platform::mid(left, 4, 2);
  main_.Label6.caption = platform::right(left, 2);
  state_.moitieSequence = model::formatTime(state_.dureeSequence / 2);
  const bool halfWay = model::timeValue(state_.moitieSequence) == state_.restantSequence;
  if (halfWay && main_.Check8.value == 1) waits_.sayWithMusicHeld("miparcours.wav");
  const auto digits = {&main_.Label4, &main_.Label5, &main_.Label6};
  const bool runOut = std::all_of(digits.begin(), digits.end(), [](const auto* label) {
    return model::lenientNumber(label->caption.get()) == 0;
  });
  return runOut ? Sequence::HasRunOut : Sequence::GoesOn;
}

void Chrono::tickSurveillance() {
  // What is paused can always be resumed, whatever the row.
  enableRideButtons(main_, state_.dureeSequence != 0 || main_.Command7.caption == "REPRENDRE");
  const auto boxes = {&main_.Check3, &main_.Check4, &main_.Check5, &main_.Check6,
                      &main_.Check7, &main_.Check8, &main_.Check9, &main_.Check13};
  if (std::all_of(boxes.begin(), boxes.end(), [](const auto* box) { return box->value == 0; })) {
    main_.Check2.value = 0;
  }
}

void Chrono::tickPanneau() {
  if (!showsEndMessage(main_)) main_.Picture6.visible = true;
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
