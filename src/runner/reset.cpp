#include "runner/reset.h"

#include <array>
#include <string>

#include "runner/visibility.h"

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
  if (state_.etatFin != "terminer" && state_.plan.sequenceCourante > 0) {
    showIdlePicture(main_);
    voice_.dire("seanceAnnule.wav");
  }
  main_.Command7.caption = "Pause";
  enableRideButtons(main_, false);
  if (!showsEndMessage(main_)) clearMessage(main_);
  showIdlePicture(main_);
  main_.Label18.caption = "Prêt pour une Nouvelle Séance d'Entraînement";
  hide({&main_.Label1, &main_.Label2, &main_.Label3, &main_.Combo1, &main_.Combo2, &main_.Combo3,
        &main_.Label10, &main_.Label11, &main_.Label39, &main_.Label15, &main_.Label20, &main_.Label12,
        &main_.Label16, &main_.Label17, &main_.Label28, &main_.Label29, &main_.Image2});
  show({&main_.Label18, &main_.Image4});
  main_.Timer1.enabled = false;
  main_.Timer2.enabled = false;
  state_.ecouleSequence = 0;
  state_.plan.sequenceCourante = 0;
  state_.dureeSequence = model::timeValue("00:00:00");
  for (auto* digits : {&main_.Label4, &main_.Label5, &main_.Label6}) digits->caption = "00";
  for (auto* field : {&main_.Label10, &main_.Label11, &main_.Label12, &main_.Label15, &main_.Label20}) {
    field->caption = "";
  }
  for (auto* box : {&main_.Combo1, &main_.Combo2, &main_.Combo3}) box->text = "00";
  if (state_.ecranVeilleActif == "oui") context_.outside.screenSaver.setActive(true);
  waits_.endHold();
}

void Reset::boutonStart() {
  if (state_.nbSequences == 0) {
    startManualChrono();
    return;
  }
  annulerSeance();
  if (main_.MyButton1.caption == "Start") {
    main_.MyButton1.caption = "Stop";
    hide({&main_.Combo1, &main_.Combo2, &main_.Combo3, &main_.Combo4});
    clearMessage(main_);
    showCountdownLength(main_);
    main_.MyFrame2.visible = true;
    main_.MyButton3.enabled = true;
  } else if (main_.MyButton1.caption == "Stop") {
    main_.MyButton3.caption = "Démarrer Chrono";
    waits_.run([this] {
      waits_.silenceMusic();
      main_.MyButton1.caption = "Start";
      main_.Timer1.enabled = false;
    });
  }
}

// With nothing programmed the time boxes set the duration. The cancel at each start empties them, so they are
// filled again.
void Reset::startManualChrono() {
  const std::array boxes{&main_.Combo1, &main_.Combo2, &main_.Combo3};
  const std::array<std::string, 3> chosen{main_.Combo1.text, main_.Combo2.text, main_.Combo3.text};
  annulerSeance();
  for (std::size_t i = 0; i < boxes.size(); ++i) boxes.at(i)->text = chosen.at(i);
  state_.dureeSequence = model::timeValue(chosen[0] + ":" + chosen[1] + ":" + chosen[2]);
  state_.dureeTotale = state_.dureeSequence;
  if (state_.dureeSequence == 0) {
    showNothingToRide(main_);
    return;
  }
  main_.Timer2.enabled = true;
}

}  // namespace runner
