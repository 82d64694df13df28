#include "player/medium.h"

#include "platform/text.h"

namespace player {

std::string formatTemps(std::int64_t milliseconds) {
  const std::int64_t seconds = milliseconds / 1000;
  return std::to_string(seconds / 3600) + ":" + platform::zeroPadded(seconds / 60 % 60, 2) + ":" +
         platform::zeroPadded(seconds % 60, 2) + "." + platform::zeroPadded(milliseconds % 1000, 3);
}

}  // namespace player
