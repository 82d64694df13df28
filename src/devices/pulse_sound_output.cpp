#include "devices/pulse_sound_output.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>
#include <utility>
#include <vector>

#include "devices/wav_decoder.h"

namespace devices {

namespace {

using namespace std::chrono_literals;

constexpr auto repaintInterval = 15ms;
constexpr auto beepLength = 200ms;

std::vector<std::int16_t> makeBeep() {
  constexpr double pitch = 880;
  constexpr double level = 8000;
  constexpr int frames = WavDecoder::sampleRate * beepLength / 1s;
  constexpr int ramp = WavDecoder::sampleRate / 200;  // fades in and out, else both ends click
  std::vector<std::int16_t> samples;
  samples.reserve(frames * 2);
  for (int frame = 0; frame < frames; ++frame) {
    const double edge = std::min({1.0, double(frame) / ramp, double(frames - frame) / ramp});
    const double wave = std::sin(2 * std::numbers::pi * pitch * frame / WavDecoder::sampleRate);
    samples.insert(samples.end(), 2, static_cast<std::int16_t>(std::lrint(level * edge * wave)));
  }
  return samples;
}

}  // namespace

PulseSoundOutput::PulseSoundOutput(PulseConnection& connection, const PulseOutputLevel& level,
                                   SoundHooks hooks)
    : connection_(connection),
      hooks_(std::move(hooks)),
      stream_(connection, level, [this] { return goOn(); }) {}

bool PulseSoundOutput::goOn() {
  const auto now = std::chrono::steady_clock::now();
  if (hooks_.whileBlocking && now - repaintedAt_ >= repaintInterval) {
    repaintedAt_ = now;
    hooks_.whileBlocking();
  }
  return !(hooks_.giveUp && hooks_.giveUp());
}

bool PulseSoundOutput::hasDevice() {
  const bool found = connection_.hasLoudspeaker();
  if (!found && hooks_.onNoDevice) std::exchange(hooks_.onNoDevice, {})();
  return found;
}

void PulseSoundOutput::beep() {
  std::vector<std::int16_t> samples = makeBeep();
  stream_.play(
      [&samples](std::span<std::int16_t> piece) {
        const std::size_t count = std::min(piece.size(), samples.size());
        std::copy_n(samples.begin(), count, piece.begin());
        samples.erase(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(count));
        return count;
      },
      beepLength);
}

bool PulseSoundOutput::playFrom(WavDecoder& decoder) {
  return stream_.play([&decoder](std::span<std::int16_t> piece) { return decoder.read(piece); },
                      decoder.length());
}

// Who cannot hear a prompt reads it: it stays for as long as it would have sounded, and the ride keeps its
// pace.
void PulseSoundOutput::readInSilence(std::chrono::steady_clock::time_point until) {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
  connection_.waitUntil([] { return false; }, std::max(left, 0ms), [this] { return goOn(); });
}

void PulseSoundOutput::play(const platform::SoundClip& clip) {
  if (!hasDevice()) return;
  WavDecoder decoder(clip.wav);
  if (!decoder.opened()) return;
  const auto begun = std::chrono::steady_clock::now();
  if (hooks_.onSpeaking) hooks_.onSpeaking(&clip);
  if (!playFrom(decoder)) readInSilence(begun + decoder.length());
  if (hooks_.onSpeaking) hooks_.onSpeaking(nullptr);
}

void PulseSoundOutput::playFile(const std::string& path) {
  if (!hasDevice()) return;
  WavDecoder decoder(path);
  if (decoder.opened()) {
    playFrom(decoder);
  } else {
    beep();
  }
}

}  // namespace devices
