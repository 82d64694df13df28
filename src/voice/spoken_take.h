// A take of somebody who speaks a prompt, made like those of the bank: as closely cut and as loud.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace voice {

// Levels in dBFS.
inline constexpr double bankLevel = -12.5;    // active level of every prompt of the bank
inline constexpr double highestPeak = -1.2;   // leaves room for resampling
inline constexpr double silentBelow = -50.0;  // a recording whose peak is lower is heard by nobody

[[nodiscard]] double amplitudeOf(double level);
// The highest absolute sample.
[[nodiscard]] float peakOf(std::span<const float> samples);
// The level of those pieces (20 ms is usual, given in samples) that lie within 25 dB of the loudest one.
[[nodiscard]] double activeLevel(std::span<const float> samples, std::size_t piece);

// The speech of a take of one channel, from 40 ms before to 80 ms behind it, at the level of the bank. What
// is short and stands alone, such as the click of a key, is no speech. Empty where nothing was said.
[[nodiscard]] std::vector<float> asPrompt(std::span<const float> take, int samplesPerSecond);

}  // namespace voice
