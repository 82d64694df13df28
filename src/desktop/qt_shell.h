// Opens files, addresses and the sound settings with the desktop's own programs.
#pragma once

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace desktop {

class QtShell final : public platform::Shell {
 public:
  // `dialogs` tell the rider if the machine has no browser, or no sound settings to open.
  explicit QtShell(platform::Dialogs& dialogs) : dialogs_(dialogs) {}

  void openFile(const std::string& path) override;
  void openAddress(const std::string& url) override;
  void openSoundSettings() override;
  bool connected() override;

 private:
  platform::Dialogs& dialogs_;
};

}  // namespace desktop
