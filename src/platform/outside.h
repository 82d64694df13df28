// All that the logic may reach outside the forms, handed in as one.
#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/media_commands.h"
#include "platform/screen_saver.h"
#include "platform/sound_output.h"

namespace platform {

struct Outside {
  Clock& clock;
  SoundOutput& sound;
  Dialogs& dialogs;
  FileSystem& files;
  ScreenSaver& screenSaver;
  MediaCommands& media;
};

}  // namespace platform
