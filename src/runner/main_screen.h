// The main screen around the ride: the program's start and end, the menus, the help on hover.
#pragma once

#include <string>

#include "context/context.h"
#include "runner/settings_page.h"
#include "voice/voice.h"

namespace runner {

class MainScreen {
 public:
  MainScreen(const context::Context& context, voice::Voice& voice, SettingsPage& settings, std::string folder,
             std::string version);

  // A platform::FileFault where one of the program's folders cannot be made.
  void demarrerProgramme();

 private:
  void quitterProgramme();
  void makeFolders();
  void fillLists();
  void tellOfOwnVoice();
  void connectMenus();
  void connectHoverHelp();
  void openEditor();

  context::Context context_;
  voice::Voice& voice_;
  SettingsPage& settings_;
  forms::MainForm& main_;
  model::SharedState& state_;
  std::string folder_;
  std::string version_;
};

}  // namespace runner
