#include "announcements/recorder.h"

#include "announcements/listening_level.h"
#include "forms/enr_une_annonce_words.h"

namespace announcements {
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
    : context_(context), voice_(voice), page_(context.screens.announcements) {
  page_.Command2.click.handle([this] { recordVoice(); });
  page_.MyButton10.click.handle([this] { recordOverMusic(); });
  page_.Command3.click.handle([this] { stop(); });
  page_.Command4.click.handle([this] { listen(); });
  page_.MyButton7.click.handle([this] { leave(); });
  page_.Timer1.tick.handle([this] { watch(); });
  page_.Timer3.tick.handle([this] { enforceTimeLimit(); });
  page_.Timer7.tick.handle([this] { ++secondesEnregistrees_; });
  page_.Timer8.tick.handle([this] { countListening(); });
}

void Recorder::makeReady() {
  resetToIdle();
  page_.Command2.enabled = true;
  page_.MyButton10.enabled = true;
  send("close all");
  send("open new type waveaudio alias capture");
}

// Whatever was under way, no take is left to listen to or to save.
void Recorder::resetToIdle() {
  ++take_;
  page_.Command2.caption = recordCaption;
  page_.Command3.caption = stopCaption;
  page_.Command4.caption = listenCaption;
  for (platform::Button* button : {&page_.Command3, &page_.Command4, &page_.Command1})
    button->enabled = false;
  for (platform::Timer* timer : {&page_.Timer1, &page_.Timer3, &page_.Timer7, &page_.Timer8}) {
    timer->enabled = false;
  }
  ecouteApresArret_ = "";
  secondesEcoutees_ = 0;
  page_.Label1.caption = readyStatus;
  page_.Label14.caption = "30 secondes d'Enregistrement au Maximum par Annonce.";
  page_.Label8.caption = "";
  page_.Label3.caption = "";
}

void Recorder::leave() {
  page_.VScroll1.value = usualListeningLevel;
  send("stop capture");
  send("close all");
  if (!page_.Command2.enabled) page_.MyButton10.enabled = true;  // a take was under way
  page_.Command2.enabled = true;
  resetToIdle();
  page_.hide();
  context_.screens.main.show();
}

void Recorder::recordVoice() {
  page_.Command2.caption = page_.Command2.caption == recordCaption ? recordingCaption : recordCaption;
  secondesEnregistrees_ = 0;
  page_.Timer7.enabled = true;
  page_.MyButton10.enabled = false;
  page_.Command3.caption = stopCaption;
  page_.Command3.enabled = true;
  demarrerCapture();
}

// The microphone picks up the music that plays in the room.
void Recorder::recordOverMusic() {
  page_.MyButton10.enabled = false;
  if (!forms::musicChosen(page_)) return;
  demarrerCapture();
  page_.Command10.click();
}

void Recorder::demarrerCapture() {
  ++take_;
  page_.Timer1.enabled = true;
  page_.Command2.enabled = false;
  page_.Command4.enabled = false;
  page_.Command1.enabled = false;
  page_.Command3.enabled = true;
  page_.Timer3.enabled = true;
  heureDebut_ = context_.loop.clock().now();
  for (const char* command : startCommands) send(command);
  ecouteApresArret_ = "oui";
}

void Recorder::watch() {
  const std::string etatCapture = statusOf(send("status capture mode"));
  page_.Label1.caption = " " + etatCapture;
  if (etatCapture == takeEnded && stop()) page_.Timer1.enabled = false;
  page_.Command5.click();
}

void Recorder::enforceTimeLimit() {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(context_.loop.clock().now() - heureDebut_);
  const auto n = seconds.count();
  page_.Label14.caption = "Durée de l'Annonce (" + (n == 0 ? "" : std::to_string(n)) + " secondes)";
  if (n < longestTake) return;
  page_.Label14.caption = "30 secondes au Maximum pour chaque Annonce.";
  if (stop()) playBackOnce();
}

bool Recorder::waitWithSameTake() {
  const unsigned take = take_;
  voice_.attendre(1);
  return take == take_;
}

bool Recorder::stop() {
  page_.Command2.caption = recordCaption;
  page_.Timer7.enabled = false;
  send("stop capture");
  page_.Timer3.enabled = false;
  if (!waitWithSameTake()) return false;
  page_.Label1.caption = readyStatus;
  page_.Command1.enabled = true;
  page_.Command4.enabled = true;
  // During the wait, watch() may have stopped the take as well and begun to play it back.
  page_.MyButton10.enabled = !listening();
  page_.Command2.enabled = !listening();
  page_.Command3.enabled = false;
  if (page_.Command3.caption != stopCaption) return true;
  page_.Command3.caption = stoppedCaption;
  return playBackOnce();
}

bool Recorder::playBackOnce() {
  if (!waitWithSameTake()) return false;
  if (ecouteApresArret_ != "oui") return true;
  page_.Command4.click();
  ecouteApresArret_ = "";
  return true;
}

bool Recorder::listening() const {
  return page_.Command4.caption == stopListeningCaption;
}

void Recorder::listen() {
  page_.Command4.enabled = true;
  if (!listening()) {
    page_.Command4.caption = stopListeningCaption;
    send("play capture from 0");
    page_.Timer8.enabled = true;
    page_.Command2.enabled = false;
    page_.MyButton10.enabled = false;
    return;
  }
  page_.Command4.caption = listenCaption;
  page_.Label14.caption = "Lecture Stoppée";
  secondesEcoutees_ = 0;
  page_.Timer8.enabled = false;
  stop();
}

// Listening ends by this count; the device is not asked.
void Recorder::countListening() {
  ++secondesEcoutees_;
  page_.Label14.caption =
      "en Lecture (" + std::to_string(secondesEnregistrees_ - secondesEcoutees_ + 1) + ") s";
  if (secondesEcoutees_ != secondesEnregistrees_ + 1) return;
  page_.Label14.caption = "Lecture Terminée";
  page_.Command4.click();
  secondesEcoutees_ = 0;
  page_.Timer8.enabled = false;
}

}  // namespace announcements
