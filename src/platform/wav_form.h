// What the header of a WAV recording says of it, and how long it takes to play.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/file_system.h"

namespace platform {

struct WavForm {
  enum class Coding { Integers, Floats, MsAdpcm, Other };

  Coding coding = Coding::Other;
  std::uint32_t channels = 0;
  std::uint32_t rate = 0;       // frames a second
  std::uint32_t blockSize = 0;  // bytes of a frame; of a block of frames where they are packed
  std::uint32_t blockFrames = 1;
  std::uint32_t bits = 0;    // of a sample
  std::uint64_t dataAt = 0;  // where the samples lie, and how many bytes of them there really are
  std::uint64_t dataSize = 0;
  std::uint64_t frames = 0;

  [[nodiscard]] std::chrono::milliseconds length() const;
};

// None for what is no WAV file of samples or MS ADPCM. Reads the headers alone.
[[nodiscard]] std::optional<WavForm> wavForm(RandomFile& wav);
[[nodiscard]] std::optional<WavForm> wavForm(std::span<const unsigned char> wav);

}  // namespace platform
