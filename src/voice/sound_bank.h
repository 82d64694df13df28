// The bank of recorded French prompts, compiled into the program and played from memory.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "platform/sound_output.h"

namespace voice {

// All prompts, by number; some few have no name.
[[nodiscard]] std::span<const platform::SoundClip> prompts();
// The number that a sound name stands for; the name is compared in full, to the letter.
[[nodiscard]] std::optional<int> soundNumber(std::string_view name);
[[nodiscard]] const platform::SoundClip* promptByNumber(int number);

}  // namespace voice
