// A desktop that opens nothing, but writes what it should open to the journal. The machine has a network.
#pragma once

#include "platform/shell.h"
#include "rehearsal/journal.h"

namespace rehearsal {

class SimulatedShell final : public platform::Shell {
 public:
  explicit SimulatedShell(Journal& journal) : journal_(journal) {}

  void openFile(const std::string& path) override { journal_.write("shell", {path}); }
  void openAddress(const std::string& url) override { journal_.write("shell", {url}); }
  void openSoundSettings() override { journal_.write("shell", {"sound settings"}); }
  bool connected() override { return true; }

 private:
  Journal& journal_;
};

}  // namespace rehearsal
