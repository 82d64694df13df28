// How long a WAV recording takes to play.
#pragma once

#include <chrono>
#include <optional>
#include <span>

#include "platform/file_system.h"

namespace rehearsal {

// None for what is no WAV file of samples or MS ADPCM.
[[nodiscard]] std::optional<std::chrono::milliseconds> wavLength(std::span<const unsigned char> wav);
[[nodiscard]] std::optional<std::chrono::milliseconds> wavLength(platform::RandomFile& wav);

}  // namespace rehearsal
