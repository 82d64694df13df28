#include "voice/wav_samples.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace voice {
namespace {

using platform::WavForm;
using Bytes = std::span<const unsigned char>;

std::uint64_t little(Bytes bytes, std::size_t at, std::size_t size) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < size; ++i) value |= std::uint64_t{bytes[at + i]} << (8 * i);
  return value;
}

int signed16(Bytes bytes, std::size_t at) {
  return static_cast<std::int16_t>(little(bytes, at, 2));
}

float wholeNumber(Bytes bytes, std::size_t at, std::size_t size) {
  if (size == 1) return (static_cast<float>(bytes[at]) - 128.0F) / 128.0F;
  // At the upper end of 32 bits, where the sign is.
  const auto shifted = static_cast<std::uint32_t>(little(bytes, at, size) << (32 - 8 * size));
  return static_cast<float>(static_cast<std::int32_t>(shifted)) / 2147483648.0F;
}

float floating(Bytes bytes, std::size_t at, std::size_t size) {
  const std::uint64_t value = little(bytes, at, size);
  return size == 4 ? std::bit_cast<float>(static_cast<std::uint32_t>(value))
                   : static_cast<float>(std::bit_cast<double>(value));
}

constexpr std::size_t adpcmHeader = 7;  // bytes a channel
constexpr float fullScale = 32768;

// One channel of a block of MS ADPCM: what comes next is foretold from the two samples before.
struct Foretelling {
  int first = 0;
  int second = 0;
  int delta = 0;
  int last = 0;
  int beforeLast = 0;

  int next(unsigned nibble) {
    static constexpr std::array adaptation{230, 230, 230, 230, 307, 409, 512, 614,
                                           768, 614, 512, 409, 307, 230, 230, 230};
    constexpr int smallestDelta = 16;
    constexpr int largestDelta = 1 << 20;  // of a sound; damaged bytes could lead anywhere
    const int error = nibble < 8 ? static_cast<int>(nibble) : static_cast<int>(nibble) - 16;
    const int foretold = (last * first + beforeLast * second) / 256;
    beforeLast = last;
    last = std::clamp(foretold + error * delta, -32768, 32767);
    delta = std::clamp(adaptation.at(nibble) * delta / 256, smallestDelta, largestDelta);
    return last;
  }
};

void addAdpcmBlock(std::vector<float>& samples, Bytes block, std::size_t channels) {
  static constexpr std::array firsts{256, 512, 0, 192, 240, 460, 392};
  static constexpr std::array seconds{0, -256, 0, 64, 0, -208, -232};
  if (block.size() < adpcmHeader * channels) return;
  std::array<Foretelling, 2> each;
  for (std::size_t c = 0; c < channels; ++c) {
    const std::size_t predictor = std::min<std::size_t>(block[c], firsts.size() - 1);
    // Behind the predictors stand, each for all channels: the step, the last sample, the one before.
    const std::size_t at = channels + 2 * c;
    each.at(c) = {firsts.at(predictor), seconds.at(predictor), signed16(block, at),
                  signed16(block, at + 2 * channels), signed16(block, at + 4 * channels)};
  }
  const auto add = [&](int sample) { samples.push_back(static_cast<float>(sample) / fullScale); };
  for (std::size_t c = 0; c < channels; ++c) add(each.at(c).beforeLast);
  for (std::size_t c = 0; c < channels; ++c) add(each.at(c).last);
  for (const unsigned char byte : block.subspan(adpcmHeader * channels)) {
    add(each.front().next(byte >> 4U));
    add(each.at(channels - 1).next(byte & 0xFU));
  }
}

}  // namespace

bool canBePlayed(const WavForm& form) {
  constexpr std::uint32_t lowestRate = 1000;
  constexpr std::uint32_t highestRate = 192000;
  if (form.channels > 2 || form.rate < lowestRate || form.rate > highestRate) return false;
  const std::uint32_t bits = form.bits;
  switch (form.coding) {
    case WavForm::Coding::Integers:
      return bits % 8 == 0 && bits >= 8 && bits <= 32 && form.blockSize == form.channels * bits / 8;
    case WavForm::Coding::Floats:
      return (bits == 32 || bits == 64) && form.blockSize == form.channels * bits / 8;
    case WavForm::Coding::MsAdpcm:
      // Decoders refuse a block that does not hold what the header says.
      return bits == 4 && form.blockSize > adpcmHeader * form.channels &&
             form.blockFrames == 2 + (form.blockSize - adpcmHeader * form.channels) * 2 / form.channels;
    case WavForm::Coding::Other:
      break;
  }
  return false;
}

std::vector<float> samplesOf(const WavForm& form, Bytes blocks) {
  std::vector<float> samples;
  const std::size_t channels = form.channels;
  if (form.coding == WavForm::Coding::MsAdpcm) {
    for (; !blocks.empty(); blocks = blocks.subspan(std::min<std::size_t>(form.blockSize, blocks.size())))
      addAdpcmBlock(samples, blocks.first(std::min<std::size_t>(form.blockSize, blocks.size())), channels);
    return samples;
  }
  const std::size_t size = form.blockSize / channels;
  const auto sampleAt = form.coding == WavForm::Coding::Floats ? floating : wholeNumber;
  samples.reserve(blocks.size() / size);
  for (std::size_t at = 0; at + size <= blocks.size(); at += size)
    samples.push_back(sampleAt(blocks, at, size));
  return samples;
}

}  // namespace voice
