// Tiny music files, made frame by frame.
#pragma once

#include <string>

#include "platform/recording.h"

namespace support {

// Silence of that many milliseconds, 8 bits, one channel.
inline std::string wavOf(std::int64_t milliseconds) {
  const platform::RecordingFormat format;
  const std::vector<unsigned char> samples(static_cast<std::size_t>(format.bytesFor(milliseconds)), 128);
  const std::vector<char> bytes = platform::wavFile(format, samples);
  return {bytes.begin(), bytes.end()};
}

// Frames of version 1, layer III, 128 kbit/s, 44100 Hz, stereo: 417 bytes and 1152 samples each.
inline std::string mp3Of(int frames, const std::string& inTheFirst = {}) {
  std::string bytes;
  for (int i = 0; i < frames; ++i) {
    std::string frame("\xFF\xFB\x90\x00", 4);
    frame.resize(417);
    if (i == 0) frame.replace(36, inTheFirst.size(), inTheFirst);
    bytes += frame;
  }
  return bytes;
}

}  // namespace support
