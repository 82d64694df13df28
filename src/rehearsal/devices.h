// Every device that a program stands on, without a machine: what is done to them is in the journal.
#pragma once

#include <optional>
#include <string>

#include "platform/media_parser.h"
#include "platform/outside.h"
#include "rehearsal/journal.h"
#include "rehearsal/scripted_dialogs.h"
#include "rehearsal/simulated_clipboard.h"
#include "rehearsal/simulated_endpoint_volume.h"
#include "rehearsal/simulated_machine.h"
#include "rehearsal/simulated_media.h"
#include "rehearsal/simulated_output_level.h"
#include "rehearsal/simulated_printer.h"
#include "rehearsal/simulated_screen_saver.h"
#include "rehearsal/simulated_shell.h"
#include "rehearsal/simulated_sound.h"

namespace rehearsal {

struct Devices {
  // `folder` is the program's. The sound has still to be attached to the program's loop.
  Devices(platform::Clock& itsClock, platform::FileSystem& itsFiles, const std::string& folder,
          SoundMode mode, std::optional<int> volumePercent = 80)
      : clock(itsClock), files(itsFiles), sound(mode, files, folder, journal), machine(volumePercent) {}

  [[nodiscard]] platform::Outside outside() {
    return {clock, sound, dialogs, files,   screenSaver, journaledMedia,
            level, shell, volume,  printer, clipboard};
  }

  platform::Clock& clock;
  platform::FileSystem& files;
  Journal journal{clock};
  SimulatedSound sound;
  ScriptedDialogs dialogs{journal};
  SimulatedScreenSaver screenSaver{journal};
  SimulatedMachine machine;
  SimulatedMedia media{clock, files, machine};
  platform::ParsedMediaCommands mediaCommands{media};
  JournaledMedia journaledMedia{mediaCommands, journal};
  SimulatedOutputLevel level{journal};
  SimulatedShell shell{journal};
  SimulatedEndpointVolume volume{machine, journal};
  SimulatedPrinter printer{journal};
  SimulatedClipboard clipboard{journal};
};

}  // namespace rehearsal
