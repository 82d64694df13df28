// The announcement that the rider is recording, or has just recorded.
#pragma once

#include <optional>
#include <string>

namespace model {

inline constexpr int longestTake = 30;  // s

struct Take {
  int seconds = 0;            // s, recorded so far or left to be heard
  std::optional<int> length;  // ms, as the recorder last told it; none: no take
  std::string file;           // path that it was saved to; empty: it is only in the recorder
};

}  // namespace model
