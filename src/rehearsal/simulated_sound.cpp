#include "rehearsal/simulated_sound.h"

#include <filesystem>
#include <utility>

#include "platform/fault.h"
#include "rehearsal/wav_length.h"

namespace rehearsal {

std::string pathInside(const std::string& folder, const std::string& path) {
  const std::filesystem::path whole = std::filesystem::path(path).lexically_normal();
  const std::filesystem::path inside =
      whole.lexically_relative(std::filesystem::path(folder).lexically_normal());
  return inside.empty() || *inside.begin() == ".." ? path : inside.string();
}

void SimulatedSound::letTimePass(std::span<const unsigned char> wav) {
  if (mode_ != SoundMode::Timed || loop_ == nullptr) return;
  const platform::EventLoop::Blocking blocking(*loop_);
  platform::Clock& clock = loop_->clock();
  const platform::Instant end = clock.now() + wavLength(wav).value_or(platform::Instant{0});
  while (clock.now() < end && !loop_->quitting()) clock.sleepUntil(end);
}

void SimulatedSound::play(const platform::SoundClip& clip) {
  if (!hasDevice()) return;
  journal_.write("prompt", {std::to_string(clip.number), clip.name});
  letTimePass(clip.wav);
}

void SimulatedSound::playFile(const std::string& path) {
  if (!hasDevice()) return;
  journal_.write("file", {pathInside(folder_, path)});
  if (mode_ != SoundMode::Timed) return;
  std::vector<unsigned char> wav;
  try {
    const auto file = files_.open(path, platform::OpenMode::Read);
    wav.resize(file->size());
    file->readAt(0, {reinterpret_cast<char*>(wav.data()), wav.size()});
  } catch (const platform::FileFault&) {
    wav.clear();  // the beep takes no time
  }
  letTimePass(wav);
}

}  // namespace rehearsal
