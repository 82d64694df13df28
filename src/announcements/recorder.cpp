#include "announcements/recorder.h"

#include "announcements/listening_level.h"
#include "forms/enr_une_annonce_words.h"

namespace announcements {
namespace {

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
    : context_(context), voice_(voice), page_(context.screens.announcements), shown_(context.state.take) {
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
  shown_ = {};
  forms::offerVoice(page_, true);
  forms::offerTakeStop(page_, true);
  forms::showListening(page_, false);
  for (platform::Button* button : {&page_.Command3, &page_.Command4, &page_.Command1})
    button->enabled = false;
  for (platform::Timer* timer : {&page_.Timer1, &page_.Timer3, &page_.Timer7, &page_.Timer8}) {
    timer->enabled = false;
  }
  ecouteApresArret_ = "";
  secondesEcoutees_ = 0;
  page_.Label1.caption = forms::readyToRecord;
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
  forms::offerVoice(page_, !forms::voiceOffered(page_));
  secondesEnregistrees_ = 0;
  page_.Timer7.enabled = true;
  page_.MyButton10.enabled = false;
  forms::offerTakeStop(page_, true);
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
  shown_.seconds = 0;
  shown_.file.clear();
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
  const auto n = static_cast<int>(seconds.count());
  shown_.seconds = n;
  page_.Label14.caption = "Durée de l'Annonce (" + (n == 0 ? "" : std::to_string(n)) + " secondes)";
  if (n < model::longestTake) return;
  page_.Label14.caption = "30 secondes au Maximum pour chaque Annonce.";
  if (stop()) playBackOnce();
}

bool Recorder::waitWithSameTake() {
  const unsigned take = take_;
  voice_.attendre(1);
  return take == take_;
}

bool Recorder::stop() {
  forms::offerVoice(page_, true);
  page_.Timer7.enabled = false;
  send("stop capture");
  page_.Timer3.enabled = false;
  if (!waitWithSameTake()) return false;
  page_.Label1.caption = forms::readyToRecord;
  page_.Command1.enabled = true;
  page_.Command4.enabled = true;
  // During the wait, watch() may have stopped the take as well and begun to play it back.
  page_.MyButton10.enabled = !forms::listeningToTake(page_);
  page_.Command2.enabled = !forms::listeningToTake(page_);
  page_.Command3.enabled = false;
  if (!forms::takeStopOffered(page_)) return true;
  forms::offerTakeStop(page_, false);
  return playBackOnce();
}

bool Recorder::playBackOnce() {
  if (!waitWithSameTake()) return false;
  if (ecouteApresArret_ != "oui") return true;
  page_.Command4.click();
  ecouteApresArret_ = "";
  return true;
}

void Recorder::listen() {
  page_.Command4.enabled = true;
  if (!forms::listeningToTake(page_)) {
    shown_.seconds = 0;
    forms::showListening(page_, true);
    send("play capture from 0");
    page_.Timer8.enabled = true;
    page_.Command2.enabled = false;
    page_.MyButton10.enabled = false;
    return;
  }
  forms::showListening(page_, false);
  page_.Label14.caption = "Lecture Stoppée";
  secondesEcoutees_ = 0;
  page_.Timer8.enabled = false;
  stop();
}

// Listening ends by this count; the device is not asked.
void Recorder::countListening() {
  ++secondesEcoutees_;
  shown_.seconds = secondesEnregistrees_ - secondesEcoutees_ + 1;
  page_.Label14.caption = "en Lecture (" + std::to_string(shown_.seconds) + ") s";
  if (secondesEcoutees_ != secondesEnregistrees_ + 1) return;
  page_.Label14.caption = "Lecture Terminée";
  page_.Command4.click();
  secondesEcoutees_ = 0;
  page_.Timer8.enabled = false;
}

}  // namespace announcements
