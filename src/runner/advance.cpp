#include "runner/advance.h"

#include "forms/lect_mci_words.h"
#include "model/training_model.h"
#include "platform/text.h"
#include "runner/boundary_sounds.h"
#include "runner/visibility.h"

namespace runner {

Advance::Advance(const context::Context& context, voice::Voice& voice, RideWaits& waits)
    : context_(context), voice_(voice), waits_(waits), main_(context.screens.main), state_(context.state) {}

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
  showRideFields();
  state_.ecouleSequence = 0;
  ++state_.plan.sequenceCourante;
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
  if (main_.Command7.caption == "Pause" || state_.dureeSequence == 0) main_.Timer1.enabled = true;
  sayRow();
  if (main_.Check7.value == 1 && !state_.sonBraquet.empty()) voice_.dire(state_.sonBraquet);
  const bool musicPlaysInRide = main_.Check10.value == 1 || main_.Check11.value == 1;
  if (main_.Check2.value == 1 && forms::musicLoaded(context_.screens.player) && musicPlaysInRide) {
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
  if (main_.Check2.value == 1) {
    state_.plan.sequenceCourante = 0;  // so that the cancel below does not speak
    waits_.hold();
    showMessage(main_, endMessage);
    waits_.pause();
    voice_.dire("finentrainement.wav");
    voice_.dire("pensezIdrater.wav");
    showIdlePicture(main_);
    main_.Label43.caption = "";
    waits_.release();
  } else {
    state_.etatFin = "terminer";
  }
  main_.MyButton4.click();
  main_.MyButton1.click();
}

void Advance::showRideFields() {
  const std::string passes = std::to_string(state_.nbSeances);
  main_.Label17.caption = (state_.nbSeances > 1 ? std::to_string(state_.seanceCourante) : "1") + "/" + passes;
  show({&main_.Label1, &main_.Label2, &main_.Label3});
  hideTimeBoxesUnderSettings(main_);
  show({&main_.Label10, &main_.Label11, &main_.Label15, &main_.Label20, &main_.Label16, &main_.Label17,
        &main_.Label28, &main_.Label29});
  hide({&main_.Label12, &main_.Label39, &main_.Label18, &main_.Image2, &main_.Image4});
}

// The music is held and released at every boundary, but the number is said only before the first row of a
// pass.
void Advance::sayPass() {
  if (main_.Check2.value != 1 || main_.Check3.value != 1 || state_.sonSeance.empty()) return;
  waits_.hold();
  if (state_.plan.sequenceCourante == 1) voice_.dire(state_.sonSeance);
  waits_.release();
}

void Advance::showRow() {
  const model::PlanRow& row = state_.plan.current();
  const std::string& duration = row.planDuree;
  main_.Combo1.text = platform::left(duration, 2);
  main_.Combo2.text = platform::mid(duration, 4, 2);
  main_.Combo3.text = platform::right(duration, 2);
  const bool spoken = row.planSequence == model::vocalAnnouncement;
  main_.Label10.caption = spoken ? std::string() : row.planCadence;
  main_.Label11.caption = row.planSequence;
  main_.Label15.caption = spoken ? std::string() : row.planBraquet;
  main_.Label20.caption = spoken ? std::string() : row.planPlateau;
  main_.Label16.caption =
      std::to_string(state_.plan.sequenceCourante) + "/" + std::to_string(state_.nbSequences);
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
    showMessage(main_, "Fréquence de Travail NON Définie\n");
    return;
  }
  main_.Label44.size = 80;
  main_.Label44.top = -180;
  main_.Label44.visible = false;
  state_.alternanceFC = 1;
  main_.Label44.visible = true;
}

void Advance::playOwnAnnouncement() {
  if (state_.plan.current().planSequence != model::vocalAnnouncement) return;
  waits_.hold();
  if (main_.Check9.value == 1) voice_.jouerAnnonce(state_.plan.current().planAnnonce);
}

void Advance::saySequenceNumber() {
  state_.sonNumSequence = sequenceNumberSound(state_.plan.sequenceCourante);
  if (main_.Check4.value == 1 && !isAnnouncement()) waits_.sayWithMusicHeld(state_.sonNumSequence);
}

void Advance::sayRow() {
  main_.Label16.caption =
      std::to_string(state_.plan.sequenceCourante) + "/" + std::to_string(state_.nbSequences);
  if (main_.Check2.value == 1) {
    sayKind();
    if (main_.Check5.value == 1 && !state_.sonCadence.empty()) voice_.dire(state_.sonCadence);
    sayChainring();
    waits_.pause();
  }
  if (!isAnnouncement()) waits_.release();
}

// With the cadence alone switched on the music is held, too, but the kind is not said.
void Advance::sayKind() {
  const bool wanted = main_.Check5.value == 1 || main_.Check13.value == 1;
  if (!wanted || isAnnouncement() || state_.sonSequence.empty()) return;
  voice_.nommer(state_.sonSequence);
  waits_.hold();
  // Named again, because a pause during the hold has put its own sound into `sonDemande`.
  if (main_.Check13.value == 1) voice_.dire(state_.sonSequence);
}

void Advance::sayChainring() {
  if (main_.Check6.value != 1 || state_.sonPlateau.empty()) return;
  // Decided by the sound's first letter: teeth ("P28.wav") and "Petit Plateau" go into one text with the
  // gear, "Grand Plateau" does not.
  const bool inOneText = state_.sonPlateau.front() == 'P';
  main_.Label15.visible = !inOneText;
  main_.Label20.visible = !inOneText;
  main_.Label39.visible = inOneText;
  voice_.dire(state_.sonPlateau);
}

bool Advance::isAnnouncement() const {
  return main_.Label11.caption == std::string(model::vocalAnnouncement);
}

}  // namespace runner
