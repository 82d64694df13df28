// All that the logic may reach outside the forms, handed in as one.
#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/endpoint_volume.h"
#include "platform/file_system.h"
#include "platform/media_commands.h"
#include "platform/output_level.h"
#include "platform/printer.h"
#include "platform/screen_saver.h"
#include "platform/shell.h"
#include "platform/sound_output.h"

namespace platform {

struct Outside {
  Clock& clock;
  SoundOutput& sound;
  Dialogs& dialogs;
  FileSystem& files;
  ScreenSaver& screenSaver;
  MediaCommands& media;
  OutputLevel& level;
  Shell& shell;
  EndpointVolume& volume;
  Printer& printer;
  Clipboard& clipboard;
};

}  // namespace platform
