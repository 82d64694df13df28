// A session's profile as a line of block characters: height is effort, width is time.
#pragma once

#include <string>

#include "model/training_model.h"

namespace console {

struct Profile {
  std::string blocks;  // empty for a plan without time
  int place = -1;      // the column being ridden, from 0; -1 when nothing is
};

[[nodiscard]] Profile profileOf(const model::SharedState& state, int width);

}  // namespace console
