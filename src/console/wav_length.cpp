#include "console/wav_length.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace console {
namespace {

using Bytes = std::span<const unsigned char>;

std::uint32_t little(Bytes bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size && at + i < bytes.size(); ++i) {
    value |= static_cast<std::uint32_t>(bytes[at + i]) << (8 * i);
  }
  return value;
}

bool reads(Bytes bytes, std::size_t at, std::string_view mark) {
  return at + mark.size() <= bytes.size() &&
         std::equal(mark.begin(), mark.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at),
                    [](char c, unsigned char byte) { return static_cast<unsigned char>(c) == byte; });
}

struct Chunks {
  Bytes format;
  Bytes fact;
  Bytes data;
};

Chunks chunksOf(Bytes wav) {
  Chunks chunks;
  for (std::size_t at = 12; at + 8 <= wav.size();) {
    const std::size_t size = std::min<std::size_t>(little(wav, at + 4, 4), wav.size() - at - 8);
    const Bytes body = wav.subspan(at + 8, size);
    if (reads(wav, at, "fmt ")) chunks.format = body;
    if (reads(wav, at, "fact")) chunks.fact = body;
    if (reads(wav, at, "data")) chunks.data = body;
    at += 8 + size + size % 2;
  }
  return chunks;
}

// Each block begins with a header that holds two samples of each channel; a nibble is a sample.
std::uint64_t adpcmFrames(const Chunks& chunks, std::size_t channels, std::size_t blockSize) {
  if (chunks.fact.size() >= 4) return little(chunks.fact, 0, 4);
  const std::size_t header = 7 * channels;
  const auto framesIn = [&](std::size_t bytes) {
    return bytes < header ? 0 : 2 + (bytes - header) * 2 / channels;
  };
  const std::size_t whole = chunks.data.size() / blockSize;
  return whole * framesIn(blockSize) + framesIn(chunks.data.size() % blockSize);
}

}  // namespace

std::optional<std::chrono::milliseconds> wavLength(Bytes wav) {
  constexpr std::uint32_t pcm = 1;
  constexpr std::uint32_t msAdpcm = 2;
  if (!reads(wav, 0, "RIFF") || !reads(wav, 8, "WAVE")) return std::nullopt;
  const Chunks chunks = chunksOf(wav);
  if (chunks.format.size() < 16) return std::nullopt;
  const std::uint32_t coding = little(chunks.format, 0, 2);
  const std::uint32_t channels = little(chunks.format, 2, 2);
  const std::uint32_t rate = little(chunks.format, 4, 4);
  const std::uint32_t blockSize = little(chunks.format, 12, 2);
  if (channels == 0 || rate == 0 || blockSize == 0) return std::nullopt;
  if (coding != pcm && coding != msAdpcm) return std::nullopt;
  const std::uint64_t frames =
      coding == pcm ? chunks.data.size() / blockSize : adpcmFrames(chunks, channels, blockSize);
  return std::chrono::milliseconds((frames * 1000 + rate / 2) / rate);
}

}  // namespace console
