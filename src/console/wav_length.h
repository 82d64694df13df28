// How long a WAV recording takes to play.
#pragma once

#include <chrono>
#include <optional>
#include <span>

namespace console {

// None for what is no WAV file of PCM or MS ADPCM.
[[nodiscard]] std::optional<std::chrono::milliseconds> wavLength(std::span<const unsigned char> wav);

}  // namespace console
