// Speaking: naming and playing prompts, the one wait, holding and releasing the music around a prompt.
#pragma once

#include <string>

#include "context/context.h"
#include "forms/lect_mci_words.h"
#include "forms/sound_settings_words.h"
#include "voice/own_voice.h"

namespace voice {

class Voice {
 public:
  explicit Voice(const context::Context& context)
      : state_(context.state),
        loop_(context.loop),
        sound_(context.outside.sound),
        main_(context.screens.main),
        player_(context.screens.player),
        ownVoice_(context.outside.files) {}

  // The recordings of the rider's own that are said for prompts of the bank.
  [[nodiscard]] OwnVoice& ownVoice() { return ownVoice_; }
  // Plays a personal announcement from the announcements' folder, without checking settings or file.
  void jouerAnnonce(const std::string& fileName);
  // Serves events for `seconds`, counted from the present time of day rounded to the whole second: it lasts
  // up to half a second less or more.
  void attendre(int seconds);
  // Where the settings let the music yield and a piece is loaded: orders it to hold, and waits a second so
  // that the player has done it before the voice speaks.
  void retenirMusique();
  // Under the same test: orders it to go on. The player does so when events are next served.
  void relacherMusique();

  // Asks for the sound of this name.
  void nommer(const std::string& name);
  // Names and plays in one.
  void dire(const std::string& name);

 private:
  // Replaces the name in `sonDemande` by its number; a name that is not in the bank stays.
  void nommerSon();
  // Plays what `sonDemande` asks for and returns at its end; no event is served meanwhile. A name that is
  // not in the bank repeats the sound before it.
  void jouerSon();
  [[nodiscard]] bool musiqueCede() const { return forms::musicYields(main_) && forms::musicLoaded(player_); }

  model::SharedState& state_;
  platform::EventLoop& loop_;
  platform::SoundOutput& sound_;
  const forms::MainForm& main_;
  const forms::LectMCI& player_;
  OwnVoice ownVoice_;
  const platform::SoundClip* sonOctets_ = nullptr;  // the sound played last
};

}  // namespace voice
