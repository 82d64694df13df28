// Files, addresses and the sound settings, handed to the rider's own desktop.
#pragma once

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace desktop {

class QtShell final : public platform::Shell {
 public:
  // `dialogs` tell where the machine has no browser, or no sound settings to open.
  explicit QtShell(platform::Dialogs& dialogs) : dialogs_(dialogs) {}

  void openFile(const std::string& path) override;
  void openAddress(const std::string& url) override;
  void openSoundSettings() override;
  bool connected() override;

 private:
  platform::Dialogs& dialogs_;
};

}  // namespace desktop
