// Decodes a whole sound as it is played; empty if it cannot be played.
#pragma once

#include "devices/wav_decoder.h"

namespace support {

template <class Sound>  // the bytes of a file, or its path
std::vector<std::int16_t> decodeWav(const Sound& sound, std::size_t pieceSize = 8192) {
  devices::WavDecoder decoder(sound);
  std::vector<std::int16_t> samples;
  std::vector<std::int16_t> piece(pieceSize);
  while (const std::size_t count = decoder.read(piece))
    samples.insert(samples.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count));
  return samples;
}

}  // namespace support
