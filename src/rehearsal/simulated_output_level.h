// The program's own level; changes are written to the journal.
#pragma once

#include <cstdio>

#include "platform/output_level.h"
#include "rehearsal/journal.h"

namespace rehearsal {

class SimulatedOutputLevel final : public platform::OutputLevel {
 public:
  explicit SimulatedOutputLevel(Journal& journal) : journal_(journal) {}

  bool set(std::uint16_t left, std::uint16_t right) override {
    char text[16];
    std::snprintf(text, sizeof text, "%04X %04X", unsigned{left}, unsigned{right});
    journal_.writeState("level", text);
    return true;
  }

 private:
  Journal& journal_;
};

}  // namespace rehearsal
