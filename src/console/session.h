// The whole program over simulated devices, with the interpreter that works it.
#pragma once

#include <istream>
#include <memory>
#include <ostream>

#include "app/program.h"
#include "console/direct_hands.h"
#include "console/interpreter.h"
#include "console/options.h"
#include "disk/disk_file_system.h"
#include "rehearsal/devices.h"
#include "rehearsal/rehearsals.h"

namespace console {

class Session {
 public:
  // `folder` is absolute. `hands` belong to a front with windows, which then also reports its pop-up menus;
  // without them the controls are worked directly. `files` replaces the disk.
  Session(const Options& options, const std::string& folder, std::ostream& out, RiderHands* hands = nullptr,
          platform::FileSystem* files = nullptr);

  // Starts the program, then carries out the commands. The exit status.
  int run(std::istream& in, std::ostream& errors);

  [[nodiscard]] app::Program& program() { return program_; }
  [[nodiscard]] Interpreter& interpreter() { return interpreter_; }
  // Writes the recorder's take to a file, for a front that draws its curve; not in the journal.
  void saveTake(const std::string& path) { devices_.media.save("capture", path); }

 private:
  std::unique_ptr<platform::Clock> clock_;
  disk::DiskFileSystem disk_;
  rehearsal::Devices devices_;
  rehearsal::Rehearsals rehearsals_;
  app::Program program_;
  DirectHands directHands_;
  Interpreter interpreter_;
};

}  // namespace console
