// The figures of the take: its length, its size, its format.
#pragma once

#include "context/context.h"

namespace announcements {

class TakeFigures {
 public:
  explicit TakeFigures(const context::Context& context);

 private:
  void show();
  double ask(const char* figure);

  forms::EnrUneAnnonce& page_;
  model::Take& take_;
  platform::MediaCommands& media_;
};

}  // namespace announcements
