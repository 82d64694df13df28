#include "devices/sound_peaks.h"

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace devices {
namespace {

constexpr sf_count_t longestFile = 100'000'000;  // frames; a damaged file may claim any length

}  // namespace

std::vector<float> peaksOf(const std::string& path, std::size_t parts) {
  SF_INFO info{};
  struct Closer {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };
  const std::unique_ptr<SNDFILE, Closer> file(sf_open(path.c_str(), SFM_READ, &info));
  if (file == nullptr || info.channels < 1 || info.frames < 1 || info.frames > longestFile) return {};
  std::vector<float> peaks(parts, 0);
  constexpr sf_count_t pieces = 4096;
  std::vector<float> samples(static_cast<std::size_t>(pieces * info.channels));
  sf_count_t at = 0;
  for (sf_count_t got = 0; (got = sf_readf_float(file.get(), samples.data(), pieces)) > 0; at += got) {
    for (sf_count_t frame = 0; frame < got; ++frame) {
      const auto part = static_cast<std::size_t>((at + frame) * static_cast<sf_count_t>(parts) / info.frames);
      float& peak = peaks[std::min(part, parts - 1)];
      for (int c = 0; c < info.channels; ++c) {
        peak = std::max(peak, std::abs(samples[static_cast<std::size_t>(frame * info.channels + c)]));
      }
    }
  }
  return peaks;
}

}  // namespace devices
