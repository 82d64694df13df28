#include "voice/spoken_take.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <numbers>
#include <numeric>
#include <optional>

namespace voice {
namespace {

using Samples = std::vector<float>;

// The mean square of each whole piece.
std::vector<double> powersOf(std::span<const float> samples, std::size_t piece) {
  std::vector<double> powers;
  for (; piece > 0 && samples.size() >= piece; samples = samples.subspan(piece)) {
    const double sum = std::transform_reduce(samples.begin(), samples.begin() + static_cast<long>(piece), 0.0,
                                             std::plus<>(), [](float x) { return double(x) * x; });
    powers.push_back(sum / static_cast<double>(piece));
  }
  return powers;
}

double powerRatio(double decibels) {
  return std::pow(10.0, decibels / 10);
}

// Takes away what lies below speech: an offset, the hum of the mains, steps.
Samples withoutRumble(std::span<const float> take, int rate) {
  constexpr double lowest = 80;  // Hz
  const auto kept = static_cast<float>(std::exp(-2 * std::numbers::pi * lowest / rate));
  Samples clean;
  clean.reserve(take.size());
  float before = take.empty() ? 0 : take.front();
  float last = 0;
  for (const float sample : take) {
    last = kept * (last + sample - before);
    before = sample;
    clean.push_back(last);
  }
  return clean;
}

struct Stretch {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The stretches of pieces that stand out of the take's own noise.
std::vector<Stretch> loudStretches(const std::vector<double>& powers) {
  constexpr double overNoise = 6;       // dB
  constexpr double underLoudest = -40;  // dB: lower is unheard, however quiet the room
  constexpr double certain = -15;       // dB: what comes as near to the loudest counts, however noisy it is
  constexpr double steady = 6;          // dB: what varies less is a noise
  if (powers.empty()) return {};
  std::vector<double> sorted = powers;
  const auto quiet = sorted.begin() + static_cast<long>(sorted.size() / 20);
  std::nth_element(sorted.begin(), quiet, sorted.end());
  const double noise = *quiet;
  const double loudest = *std::max_element(powers.begin(), powers.end());
  if (loudest <= noise * powerRatio(steady)) return {};
  const double threshold =
      std::min(std::max(noise * powerRatio(overNoise), loudest * powerRatio(underLoudest)),
               loudest * powerRatio(certain));
  std::vector<Stretch> stretches;
  for (std::size_t i = 0; i < powers.size(); ++i) {
    if (powers[i] < threshold) continue;
    if (stretches.empty() || stretches.back().end != i) stretches.push_back({i, i});
    stretches.back().end = i + 1;
  }
  return stretches;
}

// From the first to the last that lasts as long as a sound of speech does, with the short ones close to them:
// a consonant behind a pause belongs to its word, a key's click does not.
std::optional<Stretch> speechIn(const std::vector<Stretch>& stretches) {
  constexpr std::size_t shortest = 5;  // pieces
  constexpr std::size_t close = 15;
  const auto isLong = [](const Stretch& stretch) { return stretch.end - stretch.begin >= shortest; };
  auto first = std::find_if(stretches.begin(), stretches.end(), isLong);
  if (first == stretches.end()) return std::nullopt;
  auto last = std::find_if(stretches.rbegin(), stretches.rend(), isLong).base() - 1;
  while (first != stretches.begin() && first->begin - (first - 1)->end <= close) --first;
  while (last + 1 != stretches.end() && (last + 1)->begin - last->end <= close) ++last;
  return Stretch{first->begin, last->end};
}

// The stretch of samples with its margins, which rise out of silence and fall back into it.
Samples cut(const Samples& take, const Stretch& speech, std::size_t before, std::size_t behind) {
  Samples cut(before + (speech.end - speech.begin) + behind);
  for (std::size_t i = 0; i < cut.size(); ++i) {
    if (speech.begin + i < before || speech.begin + i - before >= take.size()) continue;
    const double in = static_cast<double>(i) / static_cast<double>(before);
    const double out = static_cast<double>(cut.size() - i) / static_cast<double>(behind);
    cut[i] = take[speech.begin + i - before] * static_cast<float>(std::min({in, out, 1.0}));
  }
  return cut;
}

// The least of the values around each place, as far as `reach` on both sides.
Samples leastAround(const Samples& values, std::size_t reach) {
  Samples least(values.size());
  std::deque<std::size_t> rising;  // places whose values can still become the least
  for (std::size_t i = 0; i < values.size() + reach; ++i) {
    if (i < values.size()) {
      while (!rising.empty() && values[rising.back()] >= values[i]) rising.pop_back();
      rising.push_back(i);
    }
    if (i < reach) continue;
    while (rising.front() + 2 * reach < i) rising.pop_front();
    least[i - reach] = values[rising.front()];
  }
  return least;
}

// Amplifies, and gives way smoothly around each peak that would come above the highest one.
Samples limited(const Samples& samples, double gain, int rate) {
  const auto highest = static_cast<float>(amplitudeOf(highestPeak));
  const auto reach = static_cast<std::size_t>(rate / 200);
  Samples ways(samples.size());
  std::transform(samples.begin(), samples.end(), ways.begin(), [&](float sample) {
    return std::min(static_cast<float>(gain), highest / std::max(std::abs(sample), 1e-9F));
  });
  // The mean of the least around each place is nowhere above what that place allows.
  ways = leastAround(ways, reach);
  Samples loud(samples.size());
  double sum = 0;
  std::size_t begin = 0;
  std::size_t end = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    for (; end < std::min(i + reach + 1, ways.size()); ++end) sum += ways[end];
    for (; begin + reach < i; ++begin) sum -= ways[begin];
    const double way = sum / static_cast<double>(end - begin);
    loud[i] = std::clamp(samples[i] * static_cast<float>(way), -highest, highest);
  }
  return loud;
}

// Limiting takes some loudness away, so the gain is found by a few tries.
Samples levelled(const Samples& speech, int rate) {
  constexpr int tries = 8;
  constexpr double closeEnough = 0.05;  // dB
  const auto piece = static_cast<std::size_t>(rate / 50);
  double gain = bankLevel - activeLevel(speech, piece);
  Samples loud;
  for (int i = 0; i < tries; ++i) {
    loud = limited(speech, amplitudeOf(gain), rate);
    const double missing = bankLevel - activeLevel(loud, piece);
    if (std::abs(missing) < closeEnough) break;
    gain += missing;
  }
  return loud;
}

}  // namespace

double amplitudeOf(double level) {
  return std::pow(10.0, level / 20);
}

float peakOf(std::span<const float> samples) {
  float peak = 0;
  for (const float sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

double activeLevel(std::span<const float> samples, std::size_t piece) {
  constexpr double range = -25;  // dB
  const std::vector<double> powers = powersOf(samples, piece);
  const double loudest = powers.empty() ? 0 : *std::max_element(powers.begin(), powers.end());
  double sum = 0;
  int count = 0;
  for (const double power : powers) {
    if (power < loudest * powerRatio(range)) continue;
    sum += power;
    ++count;
  }
  return 10 * std::log10(sum / count);
}

std::vector<float> asPrompt(std::span<const float> take, int samplesPerSecond) {
  const auto millisecond = static_cast<std::size_t>(samplesPerSecond) / 1000;
  const std::size_t piece = 10 * millisecond;
  const Samples clean = withoutRumble(take, samplesPerSecond);
  if (peakOf(clean) < static_cast<float>(amplitudeOf(silentBelow))) return {};
  const std::optional<Stretch> speech = speechIn(loudStretches(powersOf(clean, piece)));
  if (!speech) return {};
  return levelled(
      cut(clean, {speech->begin * piece, speech->end * piece}, 40 * millisecond, 80 * millisecond),
      samplesPerSecond);
}

}  // namespace voice
