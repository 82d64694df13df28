// The program on the desktop: its devices, its windows, and what drives its loop.
#pragma once

#include <QObject>
#include <string>

#include "app/program.h"
#include "desktop/dbus_screen_saver.h"
#include "desktop/end_signals.h"
#include "desktop/loop_alarm.h"
#include "desktop/media_control.h"
#include "desktop/qt_clipboard.h"
#include "desktop/qt_clock.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_printer.h"
#include "desktop/qt_shell.h"
#include "desktop/windows.h"
#include "devices/mpv_media.h"
#include "devices/pulse_connection.h"
#include "devices/pulse_endpoint_volume.h"
#include "devices/pulse_output_level.h"
#include "devices/pulse_sound_output.h"
#include "disk/disk_file_system.h"
#include "platform/media_parser.h"
#include "rehearsal/rehearsals.h"

namespace desktop {

class DesktopProgram final : public QObject {
  Q_OBJECT
 public:
  DesktopProgram(const std::string& folder, widgets::ThemeMode system,
                 Appearance::Choice choice = Appearance::Choice::System);

  [[nodiscard]] Appearance& appearance() { return windows_.appearance(); }
  // Shows the window and starts the program; false where it cannot start.
  [[nodiscard]] bool start();
  // Brings the window to the front, after a second launch.
  void wake();
  void addSession(const std::string& path) { windows_.addSession(path); }
  // To be called once Qt's loop has ended, for whatever reason.
  void end() { program_.end(); }

 private:
  void endWhenQuitting();
  void obeyTheSystem();
  void askToClose();
  void repaint();
  void repaintBlocking();

  QtClock clock_;
  devices::PulseConnection connection_;
  devices::PulseOutputLevel level_;
  devices::PulseSoundOutput sound_;
  QtDialogs dialogs_;
  disk::DiskFileSystem files_;
  DbusScreenSaver screenSaver_;
  devices::MpvMedia mpv_{connection_, level_, files_};
  platform::ParsedMediaCommands media_{mpv_};
  QtShell shell_;
  devices::PulseEndpointVolume volume_;
  QtPrinter printer_;
  QtClipboard clipboard_;
  rehearsal::Rehearsals rehearsals_;
  app::Program program_;
  Windows windows_;
  LoopAlarm alarm_{program_.loop()};
  MediaControl mediaControl_{program_, [this] { wake(); }};
  EndSignals endSignals_;
  bool closing_ = false;
  bool inputHeld_ = false;
};

}  // namespace desktop
