#include "rehearsal/simulated_sound.h"

#include <filesystem>
#include <utility>

#include "platform/fault.h"
#include "platform/wav_form.h"

namespace rehearsal {
namespace {

std::optional<platform::Instant> lengthOf(const std::optional<platform::WavForm>& wav) {
  if (!wav) return std::nullopt;
  return wav->length();
}

}  // namespace

std::string pathInside(const std::string& folder, const std::string& path) {
  const std::filesystem::path whole = std::filesystem::path(path).lexically_normal();
  const std::filesystem::path inside =
      whole.lexically_relative(std::filesystem::path(folder).lexically_normal());
  return inside.empty() || *inside.begin() == ".." ? path : inside.string();
}

void SimulatedSound::letPass(std::optional<platform::Instant> length) {
  if (mode_ != SoundMode::Timed || loop_ == nullptr || !length) return;
  const platform::EventLoop::Blocking blocking(*loop_);
  platform::Clock& clock = loop_->clock();
  const platform::Instant end = clock.now() + *length;
  while (clock.now() < end && !loop_->quitting()) clock.sleepUntil(end);
}

void SimulatedSound::play(const platform::SoundClip& clip) {
  if (!hasDevice()) return;
  journal_.write("prompt", {std::to_string(clip.number), clip.name});
  letPass(lengthOf(platform::wavForm(clip.wav)));
}

void SimulatedSound::playFile(const std::string& path) {
  if (!hasDevice()) return;
  journal_.write("file", {pathInside(folder_, path)});
  if (mode_ != SoundMode::Timed) return;
  std::optional<platform::Instant> length;  // none: the beep takes no time
  try {
    length = lengthOf(platform::wavForm(*files_.open(path, platform::OpenMode::Read)));
  } catch (const platform::FileFault&) {
  }
  letPass(length);
}

}  // namespace rehearsal
