#include "desktop/pulse_sound_output.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "desktop/wav_decoder.h"

namespace desktop {

namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 10ms;

std::vector<std::int16_t> makeBeep() {
  constexpr double kPitch = 880;
  constexpr double kLevel = 8000;
  constexpr int kFrames = WavDecoder::kRate / 5;
  constexpr int kRamp = WavDecoder::kRate / 200;  // without it the ends click
  std::vector<std::int16_t> samples;
  samples.reserve(kFrames * 2);
  for (int frame = 0; frame < kFrames; ++frame) {
    const double edge = std::min({1.0, double(frame) / kRamp, double(kFrames - frame) / kRamp});
    const double wave = std::sin(2 * std::numbers::pi * kPitch * frame / WavDecoder::kRate);
    samples.insert(samples.end(), 2, static_cast<std::int16_t>(std::lrint(kLevel * edge * wave)));
  }
  return samples;
}

}  // namespace

PulseSoundOutput::PulseSoundOutput(PulseConnection& connection, SoundHooks hooks)
    : connection_(connection), hooks_(std::move(hooks)), stream_(connection, [this] { return goOn(); }) {}

bool PulseSoundOutput::goOn() {
  const auto now = std::chrono::steady_clock::now();
  if (hooks_.whileBlocking && now - repaintedAt_ >= kTick) {
    repaintedAt_ = now;
    hooks_.whileBlocking();
  }
  return !(hooks_.giveUp && hooks_.giveUp());
}

bool PulseSoundOutput::hasDevice() {
  return connection_.hasLoudspeaker();
}

const PulseSoundOutput::Samples& PulseSoundOutput::converted(const platform::SoundClip& clip) {
  const auto known = converted_.find(clip.wav.data());
  if (known != converted_.end()) return known->second;
  return converted_.emplace(clip.wav.data(), decodeWav(clip.wav)).first->second;
}

void PulseSoundOutput::playSamples(const Samples& samples) {
  std::size_t at = 0;
  stream_.play([&](std::span<std::int16_t> piece) {
    const std::size_t count = std::min(piece.size(), samples.size() - at);
    std::copy_n(samples.begin() + static_cast<std::ptrdiff_t>(at), count, piece.begin());
    at += count;
    return count;
  });
}

void PulseSoundOutput::play(const platform::SoundClip& clip) {
  if (!hasDevice()) return;
  const Samples& samples = converted(clip);
  if (samples.empty()) return;
  if (hooks_.onSpeaking) hooks_.onSpeaking(&clip);
  playSamples(samples);
  if (hooks_.onSpeaking) hooks_.onSpeaking(nullptr);
}

void PulseSoundOutput::playFile(const std::string& path) {
  if (!hasDevice()) return;
  WavDecoder decoder(path);
  if (decoder.opened()) {
    stream_.play([&decoder](std::span<std::int16_t> piece) { return decoder.read(piece); });
  } else {
    playSamples(makeBeep());
  }
}

}  // namespace desktop
