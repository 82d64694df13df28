// The voice at the loudspeaker: prompts and announcement files through one stream of the sound server.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "devices/pulse_connection.h"
#include "devices/pulse_voice_stream.h"
#include "devices/wav_decoder.h"
#include "platform/sound_output.h"

namespace devices {

// What the desktop does around a sound that blocks it; each may be left out.
struct SoundHooks {
  std::function<void()> whileBlocking;                         // about every 10 ms: repaints
  std::function<bool()> giveUp;                                // true: the program ends, stop sounding
  std::function<void(const platform::SoundClip*)> onSpeaking;  // the prompt that begins; null when it ends
};

class PulseSoundOutput final : public platform::SoundOutput {
 public:
  PulseSoundOutput(PulseConnection& connection, const PulseOutputLevel& level, SoundHooks hooks);

  bool hasDevice() override;
  void play(const platform::SoundClip& clip) override;
  void playFile(const std::string& path) override;
  // Returns when nothing is left to hear: before the microphone is opened, for one.
  void settle() { stream_.settle(); }

 private:
  // A prompt, converted as far as it was ever played: its first words need not wait for its last.
  struct Prompt {
    explicit Prompt(std::span<const unsigned char> wav) : decoder(std::make_unique<WavDecoder>(wav)) {}
    std::size_t read(std::size_t from, std::span<std::int16_t> piece);

    std::unique_ptr<WavDecoder> decoder;  // null once all is converted
    std::vector<std::int16_t> samples;
  };

  void beep();
  bool goOn();

  PulseConnection& connection_;
  SoundHooks hooks_;
  std::chrono::steady_clock::time_point repaintedAt_{};
  std::unordered_map<const unsigned char*, Prompt> prompts_;  // by where the bank keeps the clip
  PulseVoiceStream stream_;
};

}  // namespace devices
