// How long a music or sound file takes to play.
#pragma once

#include <chrono>
#include <optional>

#include "platform/file_system.h"

namespace rehearsal {

// None for what is neither a WAV file nor MPEG audio. Reads little, however long the file is.
[[nodiscard]] std::optional<std::chrono::milliseconds> mediaLength(platform::RandomFile& file);

}  // namespace rehearsal
