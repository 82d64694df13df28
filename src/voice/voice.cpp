#include "voice/voice.h"

#include <cmath>

#include "voice/sound_bank.h"

namespace voice {

void Voice::nommerSon() {
  const auto* name = std::get_if<std::string>(&state_.sonDemande);
  if (name == nullptr) return;
  if (const std::optional<int> number = soundNumber(*name)) state_.sonDemande = *number;
}

void Voice::jouerSon() {
  if (loop_.quitting() || !sound_.hasDevice()) return;
  const auto* name = std::get_if<std::string>(&state_.sonDemande);
  if (name != nullptr && (name->empty() || *name == "seq0.wav")) return;
  if (name == nullptr) sonOctets_ = ownVoice_.prompt(std::get<int>(state_.sonDemande));
  if (sonOctets_ == nullptr) return;
  const platform::EventLoop::Blocking blocking(loop_);
  sound_.play(*sonOctets_);
}

void Voice::jouerAnnonce(const std::string& fileName) {
  if (loop_.quitting()) return;
  const platform::EventLoop::Blocking blocking(loop_);
  sound_.playFile(state_.dossierAnnonces + fileName);
}

void Voice::attendre(int seconds) {
  const platform::LocalTime wall = loop_.clock().localTime();
  const std::chrono::duration<double> timeOfDay = wall - std::chrono::floor<std::chrono::days>(wall);
  const double rounded = std::nearbyint(timeOfDay.count());
  const auto shift = std::chrono::duration<double>(rounded + seconds - timeOfDay.count());
  const auto rest = std::chrono::round<platform::Instant>(shift);
  if (rest <= platform::Instant::zero()) return;
  // Counted on the loop's clock, so that midnight, summer time and a suspend change nothing.
  loop_.runUntil(loop_.clock().now() + rest);
}

void Voice::retenirMusique() {
  if (!musiqueCede()) return;
  state_.musiqueSuit = "non";
  attendre(1);
}

void Voice::relacherMusique() {
  if (musiqueCede()) state_.musiqueSuit = "oui";
}

void Voice::nommer(const std::string& name) {
  state_.sonDemande = name;
  nommerSon();
}

void Voice::dire(const std::string& name) {
  nommer(name);
  jouerSon();
}

}  // namespace voice
