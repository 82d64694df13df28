// A timeline as lines, for people and scripts.
#pragma once

#include <ostream>

#include "model/timeline.h"

namespace rehearsal {

// One line an event, by the moment of its beginning: beginning and end in seconds with three decimals, the
// kind (pass, row, prompt, file, hold, music, end) and what it is, parted by tabs. docs/console.md has the
// kinds.
void print(std::ostream& out, const model::Timeline& timeline);

}  // namespace rehearsal
