#include "runner/advance.h"

#include "forms/lect_mci_words.h"
#include "forms/main_form_words.h"
#include "forms/main_message.h"
#include "forms/sound_settings_words.h"
#include "model/training_model.h"
#include "platform/text.h"
#include "runner/boundary_sounds.h"

namespace runner {

Advance::Advance(const context::Context& context, voice::Voice& voice, RideWaits& waits, EndTime& endTime)
    : context_(context),
      voice_(voice),
      waits_(waits),
      endTime_(endTime),
      main_(context.screens.main),
      state_(context.state) {}

void Advance::avancerSequence() {
  if (state_.nbSequences == 0) return;
  // A boundary can begin inside a wait of the one before it, which is then abandoned.
  waits_.overtake();
  struct Standing {
    bool& flag;
    ~Standing() { flag = false; }
  } const standing{holdsTime_ = true};
  waits_.run([this] { crossBoundary(); });
}

void Advance::crossBoundary() {
  choosePass();
  if (isOver()) {
    endRun();
    return;
  }
  showPass();
  state_.ecouleSequence = 0;
  ++state_.plan.sequenceCourante;
  endTime_.rowBegins();
  sayPass();
  showRow();
  waits_.pause();
  nameSounds();
  showTarget();
  main_.Label12.caption = state_.plan.current().planRemarque;
  state_.dureeSequence = model::timeValue(state_.plan.current().planDuree);
  playOwnAnnouncement();
  saySequenceNumber();
  // From here on time runs, although the voice that follows still delays the first tick. A ride that was
  // paused during the waits above stays paused; but an announcement has no time that could be stopped, so it
  // ends all the same.
  holdsTime_ = false;
  if (!forms::ridePaused(main_) || state_.dureeSequence == 0) main_.Timer1.enabled = true;
  sayRow();
  if (forms::saysGear(main_) && !state_.sonBraquet.empty()) voice_.dire(state_.sonBraquet);
  if (forms::voiceOn(main_) && forms::musicLoaded(context_.screens.player) && forms::musicInRide(main_)) {
    waits_.forgetHold();
    state_.musiqueSuit = "oui";
  }
}

void Advance::choosePass() {
  if (state_.nbSeances > 1) {
    if (state_.plan.sequenceCourante != 0 && state_.plan.sequenceCourante != state_.nbSequences) return;
    ++state_.seanceCourante;
    state_.plan.sequenceCourante = 0;
  } else {
    state_.seanceCourante = 1;
  }
  state_.sonSeance = passSound(state_.seanceCourante);
}

bool Advance::isOver() const {
  if (state_.seanceCourante > state_.nbSeances) return true;
  return state_.nbSeances == 1 && state_.plan.sequenceCourante == state_.nbSequences;
}

void Advance::endRun() {
  main_.Picture6.visible = false;
  main_.Timer10.enabled = false;
  if (forms::voiceOn(main_)) {
    state_.plan.sequenceCourante = 0;  // so that the cancel below does not speak
    waits_.hold();
    forms::showMessage(main_, forms::endMessage);
    waits_.pause();
    voice_.dire("finentrainement.wav");
    voice_.dire("pensezIdrater.wav");
    forms::showIdlePicture(main_);
    main_.Label43.caption = "";
    waits_.release();
  } else {
    state_.etatFin = "terminer";
  }
  main_.MyButton4.click();
  main_.MyButton1.click();
}

void Advance::showPass() {
  const std::string passes = std::to_string(state_.nbSeances);
  main_.Label17.caption = (state_.nbSeances > 1 ? std::to_string(state_.seanceCourante) : "1") + "/" + passes;
  forms::hideTimeBoxesUnderSettings(main_);
  forms::showRideFields(main_);
}

// The music is held and released at every boundary, but the number is said only before the first row of a
// pass.
void Advance::sayPass() {
  if (!forms::voiceOn(main_) || !forms::saysPass(main_) || state_.sonSeance.empty()) return;
  waits_.hold();
  if (state_.plan.sequenceCourante == 1) voice_.dire(state_.sonSeance);
  waits_.release();
}

void Advance::showRow() {
  const model::PlanRow& row = state_.plan.current();
  forms::showInBoxes(forms::timeBoxes(main_), forms::timeParts(row.planDuree));
  const bool spoken = row.spoken();
  main_.Label10.caption = spoken ? std::string() : row.planCadence;
  main_.Label11.caption = row.planSequence;
  main_.Label15.caption = spoken ? std::string() : row.planBraquet;
  main_.Label20.caption = spoken ? std::string() : row.planPlateau;
  forms::showPlace(main_, state_);
  if (!spoken) composeGearText();
}

void Advance::composeGearText() {
  const std::string& gear = main_.Label15.caption;
  const std::string& chainring = main_.Label20.caption;
  const bool inWords = gear == "Grand Braquet" || gear == "Petit Braquet" || chainring == "Grand Plateau" ||
                       chainring == "Petit Plateau";
  main_.Label39.caption =
      inWords ? chainring + " * " + gear : "Braquet de (" + chainring + " x " + gear + ")";
}

// From the captions on the screen, not from the plan.
void Advance::nameSounds() {
  state_.sonSequence = sequenceSound(main_.Label11.caption);
  state_.sonCadence = cadenceSound(main_.Label10.caption);
  state_.sonBraquet = gearSound(main_.Label15.caption);
  state_.sonPlateau = chainringSound(main_.Label20.caption);
}

void Advance::showTarget() {
  main_.Label44.caption = "";
  const std::string target = platform::trim(state_.plan.current().planFreqCard);
  if (target.empty() || target == "---" || target == model::noTarget) {
    forms::showMessage(main_, "Fréquence de Travail NON Définie\n");
    return;
  }
  state_.alternanceFC = 1;
  forms::makeRoomForTarget(main_);
}

void Advance::playOwnAnnouncement() {
  if (!state_.plan.current().spoken()) return;
  waits_.hold();
  if (forms::playsOwnAnnouncements(main_)) voice_.jouerAnnonce(state_.plan.current().planAnnonce);
}

void Advance::saySequenceNumber() {
  state_.sonNumSequence = sequenceNumberSound(state_.plan.sequenceCourante);
  if (forms::saysSequenceNumber(main_) && !state_.plan.current().spoken())
    waits_.sayWithMusicHeld(state_.sonNumSequence);
}

void Advance::sayRow() {
  if (forms::voiceOn(main_)) {
    sayKind();
    if (forms::saysCadence(main_) && !state_.sonCadence.empty()) voice_.dire(state_.sonCadence);
    sayChainring();
    waits_.pause();
  }
  if (!state_.plan.current().spoken()) waits_.release();
}

// With the cadence alone switched on the music is held, too, but the kind is not said.
void Advance::sayKind() {
  const bool wanted = forms::saysCadence(main_) || forms::saysKind(main_);
  if (!wanted || state_.plan.current().spoken() || state_.sonSequence.empty()) return;
  voice_.nommer(state_.sonSequence);
  waits_.hold();
  // Named again, because a pause during the hold has put its own sound into `sonDemande`.
  if (forms::saysKind(main_)) voice_.dire(state_.sonSequence);
}

void Advance::sayChainring() {
  if (!forms::saysChainring(main_) || state_.sonPlateau.empty()) return;
  // Decided by the sound's first letter: teeth ("P28.wav") and "Petit Plateau" go into one text with the
  // gear, "Grand Plateau" does not.
  const bool inOneText = state_.sonPlateau.front() == 'P';
  main_.Label15.visible = !inOneText;
  main_.Label20.visible = !inOneText;
  main_.Label39.visible = inOneText;
  voice_.dire(state_.sonPlateau);
}

}  // namespace runner
