// Where the voice sounds: plays a prompt from memory or a recording from a file, and blocks until it has
// ended.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace platform {

// A recorded prompt: a whole WAV file in memory (PCM u8 or s16, or MS ADPCM).
struct SoundClip {
  int number = 0;           // the prompt's number in the bank
  std::string_view name;    // its sound name, empty for the few prompts without one
  std::string_view spoken;  // the French text that the recording speaks
  std::span<const unsigned char> wav;
};

class SoundOutput {
 public:
  virtual ~SoundOutput() = default;
  // False: there is no output device, so nothing is played and no time passes.
  virtual bool hasDevice() = 0;
  // Plays to the end, then returns. A failure is silence, never a fault.
  virtual void play(const SoundClip& clip) = 0;
  // Plays a WAV file to the end, then returns. A file that cannot be played gives the platform's beep.
  virtual void playFile(const std::string& path) = 0;
};

}  // namespace platform
