// The voice at the loudspeaker: prompts and announcement files through one stream of the sound server.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "devices/pulse_connection.h"
#include "devices/pulse_voice_stream.h"
#include "devices/wav_decoder.h"
#include "platform/sound_output.h"

namespace devices {

// Called while a sound blocks the program, but for the last. Each may be empty.
struct SoundHooks {
  std::function<void()> whileBlocking;                         // about every 20 ms: repaints
  std::function<bool()> giveUp;                                // true when the program ends: the sound stops
  std::function<void(const platform::SoundClip*)> onSpeaking;  // the prompt that begins; null when it ends
  std::function<void()> onNoDevice;                            // once, when there is no loudspeaker
};

class PulseSoundOutput final : public platform::SoundOutput {
 public:
  PulseSoundOutput(PulseConnection& connection, const PulseOutputLevel& level, SoundHooks hooks);

  bool hasDevice() override;
  void play(const platform::SoundClip& clip) override;
  void playFile(const std::string& path) override;
  // Waits until the last sound has been heard to its end, for example before the microphone is opened.
  void settle() { stream_.settle(); }

 private:
  void beep();
  bool goOn();
  bool playFrom(WavDecoder& decoder);
  void readInSilence(std::chrono::steady_clock::time_point until);

  PulseConnection& connection_;
  SoundHooks hooks_;
  std::chrono::steady_clock::time_point repaintedAt_{};
  PulseVoiceStream stream_;
};

}  // namespace devices
