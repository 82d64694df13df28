// The voice at the loudspeaker: prompts and announcement files through one stream of the sound server.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "desktop/pulse_connection.h"
#include "desktop/pulse_voice_stream.h"
#include "platform/sound_output.h"

namespace desktop {

// What the desktop does around a sound that blocks it; each may be left out.
struct SoundHooks {
  std::function<void()> whileBlocking;                         // about every 10 ms: repaints
  std::function<bool()> giveUp;                                // true: the program ends, stop sounding
  std::function<void(const platform::SoundClip*)> onSpeaking;  // the prompt that begins; null when it ends
};

class PulseSoundOutput final : public platform::SoundOutput {
 public:
  PulseSoundOutput(PulseConnection& connection, SoundHooks hooks);

  bool hasDevice() override;
  void play(const platform::SoundClip& clip) override;
  void playFile(const std::string& path) override;
  // Returns when nothing is left to hear: before the microphone is opened, for one.
  void settle() { stream_.settle(); }

 private:
  using Samples = std::vector<std::int16_t>;

  const Samples& converted(const platform::SoundClip& clip);
  void playSamples(const Samples& samples);
  bool goOn();

  PulseConnection& connection_;
  SoundHooks hooks_;
  std::chrono::steady_clock::time_point repaintedAt_{};
  std::unordered_map<const unsigned char*, Samples> converted_;  // by where the bank keeps the clip
  PulseVoiceStream stream_;
};

}  // namespace desktop
