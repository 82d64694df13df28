#include "devices/pulse_studio.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace devices {
namespace {

constexpr std::chrono::milliseconds wakingUp{2000};  // of a microphone that the server has put to sleep

}  // namespace

PulseStudio::PulseStudio(std::function<bool()> giveUp)
    : giveUp_(std::move(giveUp)), output_(connection_, level_, {{}, giveUp_, {}, {}}) {}

bool PulseStudio::record(int samplesPerSecond) {
  output_.settle();  // else the microphone hears the end of it
  if (!connection_.ready()) return false;
  recorder_.start({samplesPerSecond, 16, 1});
  const bool heard = connection_.waitUntil([this] { return recorder_.size() > 0; }, wakingUp,
                                           [this] { return recorder_.running() && !giveUp_(); });
  if (!heard) recorder_.stop();
  return heard;
}

std::vector<float> PulseStudio::stop() {
  recorder_.stop();
  const std::vector<unsigned char> bytes = recorder_.samples();
  std::vector<float> samples;
  samples.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto whole = static_cast<std::int16_t>(bytes[i] | bytes[i + 1] << 8);
    samples.push_back(static_cast<float>(whole) / 32768.0F);
  }
  return samples;
}

bool PulseStudio::play(std::span<const unsigned char> wav) {
  if (!output_.hasDevice()) return false;
  output_.play({0, {}, {}, wav});
  return true;
}

}  // namespace devices
