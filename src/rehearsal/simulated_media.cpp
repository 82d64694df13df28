#include "rehearsal/simulated_media.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "platform/fault.h"
#include "rehearsal/media_length.h"

namespace rehearsal {
namespace {

using platform::MediaFigure;
using platform::RecordingFormat;
using platform::TimeFormat;

// A tone of 440 Hz at half the full level, which comes and goes as syllables and sentences do.
std::vector<unsigned char> tone(const RecordingFormat& format, std::int64_t milliseconds) {
  constexpr double pitch = 440;
  constexpr double halfSyllable = 0.35;  // seconds
  constexpr double sentence = 2.3;
  const int bytesASample = format.bitsPerSample / 8;
  std::vector<unsigned char> samples;
  samples.reserve(static_cast<std::size_t>(format.bytesFor(milliseconds)));
  const std::int64_t frames = format.bytesFor(milliseconds) / format.frameBytes();
  for (std::int64_t frame = 0; frame < frames; ++frame) {
    const double turns = 2 * std::numbers::pi * static_cast<double>(frame) / format.samplesPerSecond;
    const double loudness = std::sin(turns * 0.5 / halfSyllable) * (0.55 + 0.45 * std::sin(turns / sentence));
    const auto value = static_cast<int>(std::lround(16383 * loudness * std::sin(turns * pitch)));
    for (int channel = 0; channel < format.channels; ++channel) {
      if (bytesASample == 2) samples.push_back(static_cast<unsigned char>(value & 0xFF));
      const int high = bytesASample == 2 ? value >> 8 : (value >> 8) + 128;  // 8 bits have no sign
      samples.push_back(static_cast<unsigned char>(high & 0xFF));
    }
  }
  return samples;
}

}  // namespace

SimulatedMedia::Device* SimulatedMedia::now(const std::string& alias) {
  const auto found = devices_.find(alias);
  if (found == devices_.end()) return nullptr;
  Device& device = found->second;
  const std::int64_t passed = (clock_.now() - device.since).count();
  if (device.mode == Mode::Playing) {
    // `since` stays the time of the start, so that frequent queries lose no fractions of a millisecond.
    const std::int64_t reached = device.position + passed * device.speed / 1000;
    if (reached >= device.length) {
      device.position = device.length;
      device.mode = Mode::Stopped;
    }
  } else if (device.mode == Mode::Recording) {
    device.length = device.position = passed;
    if (!machine_.microphone) device.mode = Mode::Stopped;
  }
  return &device;
}

void SimulatedMedia::become(const std::string& alias, Mode mode) {
  Device* device = now(alias);
  if (device == nullptr) return;
  if (device->mode == Mode::Playing) {
    device->position += (clock_.now() - device->since).count() * device->speed / 1000;
  }
  device->since = clock_.now();
  device->mode = mode;
}

std::int64_t SimulatedMedia::milliseconds(const Device& device, std::int64_t inItsFormat) {
  return device.timeFormat == TimeFormat::Bytes ? device.format.millisecondsFor(inItsFormat) : inItsFormat;
}

std::int64_t SimulatedMedia::inItsFormat(const Device& device, std::int64_t milliseconds) {
  return device.timeFormat == TimeFormat::Bytes ? device.format.bytesFor(milliseconds) : milliseconds;
}

void SimulatedMedia::openFile(const std::string& alias, const std::string& path) {
  const auto file = files_.open(path, platform::OpenMode::Read);
  const auto length = mediaLength(*file);
  if (!length) return;
  Device device;
  device.length = length->count();
  devices_.emplace(alias, device);
}

void SimulatedMedia::openRecorder(const std::string& alias) {
  Device device;
  device.recorder = true;
  devices_.emplace(alias, device);
}

void SimulatedMedia::play(const std::string& alias) {
  const Device* device = now(alias);
  if (device != nullptr && device->position < device->length) become(alias, Mode::Playing);
}

void SimulatedMedia::playFrom(const std::string& alias, std::int64_t position) {
  seek(alias, position);
  play(alias);
}

void SimulatedMedia::stop(const std::string& alias) {
  become(alias, Mode::Stopped);
}

void SimulatedMedia::pause(const std::string& alias) {
  const Device* device = now(alias);
  if (device != nullptr && device->mode == Mode::Playing) become(alias, Mode::Paused);
}

void SimulatedMedia::seek(const std::string& alias, std::int64_t position) {
  become(alias, Mode::Stopped);
  if (Device* device = now(alias)) {
    device->position = std::clamp<std::int64_t>(milliseconds(*device, position), 0, device->length);
  }
}

void SimulatedMedia::record(const std::string& alias) {
  const Device* device = now(alias);
  if (device != nullptr && device->recorder && machine_.microphone) become(alias, Mode::Recording);
}

void SimulatedMedia::save(const std::string& alias, const std::string& path) {
  const Device* device = now(alias);
  if (device == nullptr || !device->recorder) return;
  platform::saveWhole(files_, path, platform::wavFile(device->format, tone(device->format, device->length)));
}

void SimulatedMedia::setTimeFormat(const std::string& alias, TimeFormat format) {
  Device* device = now(alias);
  // A player of files counts in time alone.
  if (device != nullptr && (device->recorder || format == TimeFormat::Milliseconds)) {
    device->timeFormat = format;
  }
}

void SimulatedMedia::setRecording(const std::string& alias, platform::RecordingFigure figure, int value) {
  Device* device = now(alias);
  if (device != nullptr && device->recorder && device->length == 0) device->format.set(figure, value);
}

void SimulatedMedia::setSpeed(const std::string& alias, int thousandths) {
  Device* device = now(alias);
  if (device == nullptr || device->recorder) return;
  become(alias, device->mode);  // what was played so far ran at the speed before
  device->speed = thousandths;
}

std::string SimulatedMedia::mode(const std::string& alias) {
  constexpr std::array<const char*, 4> words{"stopped", "paused", "playing", "recording"};
  const Device* device = now(alias);
  return device == nullptr ? std::string() : words[static_cast<std::size_t>(device->mode)];
}

std::optional<std::int64_t> SimulatedMedia::figure(const std::string& alias, MediaFigure figure) {
  const Device* device = now(alias);
  if (device == nullptr) return std::nullopt;
  if (figure == MediaFigure::Length) return inItsFormat(*device, device->length);
  if (figure == MediaFigure::Position) {
    const std::int64_t passed = (clock_.now() - device->since).count();
    const bool runs = device->mode == Mode::Playing;
    return inItsFormat(*device, device->position + (runs ? passed * device->speed / 1000 : 0));
  }
  if (!device->recorder) return std::nullopt;
  if (figure == MediaFigure::Channels) return device->format.channels;
  if (figure == MediaFigure::BitsPerSample) return device->format.bitsPerSample;
  return device->format.bytesPerSecond();
}

std::string JournaledMedia::send(const std::string& command) {
  std::string answer = media_.send(command);
  if (answer.empty()) {
    journal_.write("media", {command});
  } else {
    journal_.write("media", {command, answer});
  }
  return answer;
}

}  // namespace rehearsal
