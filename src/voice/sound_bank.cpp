#include "voice/sound_bank.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "voice_symbols.inc"

namespace voice {
namespace {

struct Row {
  int number;
  std::string_view name;
  std::string_view spoken;
  const unsigned char* begin;
  const unsigned char* end;
};

constexpr Row rows[] = {
#include "voice_prompts.inc"
};

std::vector<platform::SoundClip> makeClips() {
  std::vector<platform::SoundClip> clips;
  for (const Row& row : rows) {
    clips.push_back({row.number, row.name, row.spoken, std::span(row.begin, row.end)});
  }
  return clips;
}

}  // namespace

std::span<const platform::SoundClip> prompts() {
  static const std::vector<platform::SoundClip> clips = makeClips();
  return clips;
}

std::optional<int> soundNumber(std::string_view name) {
  if (name.empty()) return std::nullopt;
  const auto clips = prompts();
  const auto found = std::find_if(clips.begin(), clips.end(),
                                  [&](const platform::SoundClip& clip) { return clip.name == name; });
  if (found == clips.end()) return std::nullopt;
  return found->number;
}

const platform::SoundClip* promptByNumber(int number) {
  const auto clips = prompts();
  const auto found = std::find_if(clips.begin(), clips.end(),
                                  [&](const platform::SoundClip& clip) { return clip.number == number; });
  return found == clips.end() ? nullptr : &*found;
}

}  // namespace voice
