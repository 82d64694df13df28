#include "player/medium.h"

#include <algorithm>

namespace player {

std::string formatTemps(std::int64_t milliseconds) {
  const auto padded = [](std::int64_t value, std::size_t digits) {
    const std::string text = std::to_string(value);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
  };
  const std::int64_t seconds = milliseconds / 1000;
  return std::to_string(seconds / 3600) + ":" + padded(seconds / 60 % 60, 2) + ":" + padded(seconds % 60, 2) +
         "." + padded(milliseconds % 1000, 3);
}

}  // namespace player
