// A screen saver that is on at the start; changes are written to the journal.
#pragma once

#include "platform/screen_saver.h"
#include "rehearsal/journal.h"

namespace rehearsal {

class SimulatedScreenSaver final : public platform::ScreenSaver {
 public:
  explicit SimulatedScreenSaver(Journal& journal) : journal_(journal) {}

  bool active() override { return active_; }
  void setActive(bool active) override {
    active_ = active;
    journal_.write("saver", {active ? "on" : "off"});
  }

 private:
  Journal& journal_;
  bool active_ = true;
};

}  // namespace rehearsal
