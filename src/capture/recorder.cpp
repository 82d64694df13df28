#include "capture/recorder.h"

#include "capture/listening_level.h"
#include "capture/selection.h"

namespace capture {
namespace {

constexpr int longestTake = 30;  // seconds

constexpr const char* recordCaption = "Enregistrer la Voix";
constexpr const char* recordingCaption = "Enregistrement en Cours";
constexpr const char* stopCaption = "Stopper l'Enregistrement en Cours";
constexpr const char* stoppedCaption = "Enregistrement Stoppé";
constexpr const char* listenCaption = "Ecouter l'Annonce Enregistrée";
constexpr const char* stopListeningCaption = "Arrêt Lecture de l'Annonce Enregistrée";
constexpr const char* readyStatus = "Prêt pour Enregistrer une Annonce";
constexpr const char* takeEnded = "Enregistrement Terminé";

// 11025 bytes a second: voice needs no more.
constexpr const char* startCommands[] = {"close all",
                                         "open new type waveaudio alias capture",
                                         "seek capture to start",
                                         "set capture samplespersec 11025",
                                         "set capture bitspersample 8",
                                         "set capture channels 1",
                                         "record capture"};

std::string statusOf(const std::string& mode) {
  if (mode.starts_with("playing")) return "Lecture en Cours";
  if (mode.starts_with("stopped")) return takeEnded;
  if (mode.starts_with("recording")) return "Enregistrement en Cours";
  return mode;
}

}  // namespace

Recorder::Recorder(const context::Context& context, voice::Voice& voice)
    : context_(context), voice_(voice), form_(context.screens.announcements) {
  form_.Command2.click.handle([this] { recordVoice(); });
  form_.MyButton10.click.handle([this] { recordOverMusic(); });
  form_.Command3.click.handle([this] { stop(); });
  form_.Command4.click.handle([this] { listen(); });
  form_.MyButton7.click.handle([this] { leave(); });
  form_.Timer1.tick.handle([this] { watch(); });
  form_.Timer3.tick.handle([this] { keepLimit(); });
  form_.Timer7.tick.handle([this] { ++secondesEnregistrees_; });
  form_.Timer8.tick.handle([this] { countListening(); });
}

void Recorder::makeReady() {
  rest();
  form_.Command2.enabled = true;
  form_.MyButton10.enabled = true;
  send("close all");
  send("open new type waveaudio alias capture");
}

// No take is left to listen to or to save, whatever was under way.
void Recorder::rest() {
  ++take_;
  form_.Command2.caption = recordCaption;
  form_.Command3.caption = stopCaption;
  form_.Command4.caption = listenCaption;
  for (platform::Button* button : {&form_.Command3, &form_.Command4, &form_.Command1})
    button->enabled = false;
  for (platform::Timer* timer : {&form_.Timer1, &form_.Timer3, &form_.Timer7, &form_.Timer8}) {
    timer->enabled = false;
  }
  ecouteApresArret_ = "";
  secondesEcoutees_ = 0;
  form_.Label1.caption = readyStatus;
  form_.Label14.caption = "30 secondes d'Enregistrement au Maximum par Annonce.";
  form_.Label8.caption = "";
  form_.Label3.caption = "";
}

void Recorder::leave() {
  form_.VScroll1.value = usualListeningLevel;
  send("stop capture");
  send("close all");
  if (!form_.Command2.enabled) form_.MyButton10.enabled = true;  // a take was under way
  form_.Command2.enabled = true;
  rest();
  form_.hide();
  context_.screens.main.show();
}

void Recorder::recordVoice() {
  form_.Command2.caption = form_.Command2.caption == recordCaption ? recordingCaption : recordCaption;
  secondesEnregistrees_ = 0;
  form_.Timer7.enabled = true;
  form_.MyButton10.enabled = false;
  form_.Command3.caption = stopCaption;
  form_.Command3.enabled = true;
  demarrerCapture();
}

// The microphone picks up the music that plays in the room.
void Recorder::recordOverMusic() {
  form_.MyButton10.enabled = false;
  if (form_.Label6.caption == noMusicChosen) return;
  demarrerCapture();
  form_.Command10.click();
}

void Recorder::demarrerCapture() {
  ++take_;
  form_.Timer1.enabled = true;
  form_.Command2.enabled = false;
  form_.Command4.enabled = false;
  form_.Command1.enabled = false;
  form_.Command3.enabled = true;
  form_.Timer3.enabled = true;
  heureDebut_ = context_.loop.clock().now();
  for (const char* command : startCommands) send(command);
  ecouteApresArret_ = "oui";
}

void Recorder::watch() {
  etatCapture_ = statusOf(send("status capture mode"));
  form_.Label1.caption = " " + etatCapture_;
  if (etatCapture_ == takeEnded && stop()) form_.Timer1.enabled = false;
  form_.Command5.click();
}

void Recorder::keepLimit() {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(context_.loop.clock().now() - heureDebut_);
  const auto n = seconds.count();
  form_.Label14.caption = "Durée de l'Annonce (" + (n == 0 ? "" : std::to_string(n)) + " secondes)";
  if (n < longestTake) return;
  form_.Label14.caption = "30 secondes au Maximum pour chaque Annonce.";
  if (stop()) playBackOnce();
}

bool Recorder::takeOutlastsWait() {
  const unsigned take = take_;
  voice_.attendre(1);
  return take == take_;
}

bool Recorder::stop() {
  form_.Command2.caption = recordCaption;
  form_.Timer7.enabled = false;
  send("stop capture");
  form_.Timer3.enabled = false;
  if (!takeOutlastsWait()) return false;
  form_.Label1.caption = readyStatus;
  form_.Command1.enabled = true;
  form_.Command4.enabled = true;
  // The watch may have stopped, too, during the wait, and begun to play the take back.
  form_.MyButton10.enabled = !listening();
  form_.Command2.enabled = !listening();
  form_.Command3.enabled = false;
  if (form_.Command3.caption != stopCaption) return true;
  form_.Command3.caption = stoppedCaption;
  return playBackOnce();
}

bool Recorder::playBackOnce() {
  if (!takeOutlastsWait()) return false;
  if (ecouteApresArret_ != "oui") return true;
  form_.Command4.click();
  ecouteApresArret_ = "";
  return true;
}

bool Recorder::listening() const {
  return form_.Command4.caption == stopListeningCaption;
}

void Recorder::listen() {
  form_.Command4.enabled = true;
  if (!listening()) {
    form_.Command4.caption = stopListeningCaption;
    send("play capture from 0");
    form_.Timer8.enabled = true;
    form_.Command2.enabled = false;
    form_.MyButton10.enabled = false;
    return;
  }
  form_.Command4.caption = listenCaption;
  form_.Label14.caption = "Lecture Stoppée";
  secondesEcoutees_ = 0;
  form_.Timer8.enabled = false;
  stop();
}

// The count ends the listening, not the device.
void Recorder::countListening() {
  ++secondesEcoutees_;
  form_.Label14.caption =
      "en Lecture (" + std::to_string(secondesEnregistrees_ - secondesEcoutees_ + 1) + ") s";
  if (secondesEcoutees_ != secondesEnregistrees_ + 1) return;
  form_.Label14.caption = "Lecture Terminée";
  form_.Command4.click();
  secondesEcoutees_ = 0;
  form_.Timer8.enabled = false;
}

}  // namespace capture
