// The sound-warning settings: the boxes, of which some switch others, and the file that keeps them.
#pragma once

#include <array>
#include <string>

#include "context/context.h"
#include "model/settings_file.h"
#include "voice/voice.h"

namespace runner {

class SettingsPage {
 public:
  SettingsPage(const context::Context& context, voice::Voice& voice);

  // At start-up: reads the file, or makes it.
  void lireOuCreer();
  // Opens the page over the time boxes.
  void ouvrir();

 private:
  void lireParametres();
  void parametresParDefaut();
  void enregistrerParametres();
  void coupleBoxes();
  void close();
  void repair();
  [[nodiscard]] std::string path() const;

  context::Context context_;
  voice::Voice& voice_;
  forms::MainForm& main_;
  model::SharedState& state_;
  std::array<platform::CheckBox*, model::settingsBoxCount> boxes_;
};

}  // namespace runner
