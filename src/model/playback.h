// How far a sound has come.
#pragma once

#include <algorithm>
#include <cstdint>

namespace model {

struct Playback {
  std::int64_t position = 0;  // ms
  std::int64_t length = 0;    // ms; 0: not open

  // 0 to 1
  [[nodiscard]] double share() const {
    return length > 0 ? std::clamp(static_cast<double>(position) / static_cast<double>(length), 0.0, 1.0) : 0;
  }
  // The player stays at the end of a sound. False where nothing is open.
  [[nodiscard]] bool atEnd() const { return length > 0 && position == length; }
  bool operator==(const Playback&) const = default;
};

}  // namespace model
