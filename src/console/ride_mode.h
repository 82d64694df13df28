// A session ridden by a person at a terminal.
#pragma once

#include <string>

namespace console {

// Rides the session file at the clock's pace, so many times faster. The exit status.
[[nodiscard]] int ride(const std::string& sessionFile, double speed);

}  // namespace console
