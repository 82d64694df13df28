// The samples of a WAV recording, to be measured.
#pragma once

#include <span>
#include <vector>

#include "platform/wav_form.h"

namespace voice {

// Mono or stereo, whole numbers of 8 to 32 bits, floats or MS ADPCM, at a usual rate: what any loudspeaker of
// ours is sure to play.
[[nodiscard]] bool canBePlayed(const platform::WavForm& form);

// The samples of whole blocks of a recording that can be played: 1 is full scale, the channels in turn.
[[nodiscard]] std::vector<float> samplesOf(const platform::WavForm& form,
                                           std::span<const unsigned char> blocks);

}  // namespace voice
