// A recording of the microphone: its format, and the WAV file that it becomes.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/media_backend.h"

namespace platform {

struct RecordingFormat {
  int samplesPerSecond = 11025;
  int bitsPerSample = 8;
  int channels = 1;

  // A value that no recorder supports is ignored.
  void set(RecordingFigure figure, int value);
  [[nodiscard]] int frameBytes() const { return channels * bitsPerSample / 8; }
  [[nodiscard]] int bytesPerSecond() const { return samplesPerSecond * frameBytes(); }
  // Lengths, to the whole frame.
  [[nodiscard]] std::int64_t bytesFor(std::int64_t milliseconds) const;
  [[nodiscard]] std::int64_t millisecondsFor(std::int64_t bytes) const;
};

// The samples with a WAV header in front.
[[nodiscard]] std::vector<char> wavFile(const RecordingFormat& format,
                                        std::span<const unsigned char> samples);

// Replaces the file whole or not at all (WholeFile). Throws FileFault.
void saveWhole(FileSystem& files, const std::string& path, std::span<const char> bytes);

}  // namespace platform
