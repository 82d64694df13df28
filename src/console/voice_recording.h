// Somebody speaks the prompts of the bank, one after another, at a terminal.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/sound_output.h"
#include "platform/studio.h"
#include "voice/own_voice.h"

namespace console {

// What somebody answers at a terminal, a letter each.
class Answers {
 public:
  virtual ~Answers() = default;
  // Waits for it: '\n' is Enter alone, 0 the end, after which nothing more comes.
  virtual char next() = 0;
  // Forgets what a person has typed since the last one.
  virtual void forget() = 0;
};

class VoiceRecording {
 public:
  // The recordings go to `folder`, as NUMBER.wav; those that it holds already are not asked for.
  VoiceRecording(platform::FileSystem& files, platform::Studio& studio, Answers& answers, std::ostream& out,
                 const std::string& folder);

  // Until all are spoken or he stops. Throws platform::FileFault where the folder cannot be made.
  void run();

 private:
  enum class Outcome { Done, Again, Stop };

  [[nodiscard]] int recorded() const;
  void tellProgress();
  // Asks until one of these letters comes, or the end.
  char ask(const std::string& question, const std::string& letters);
  bool speak(const platform::SoundClip& clip);
  // Records. None where it did not become a prompt, which is told, or he stops.
  std::optional<std::vector<char>> take();
  std::vector<char> shaped(const std::vector<float>& samples);
  void listen(const std::vector<char>& wav);
  Outcome judge(const platform::SoundClip& clip, const std::vector<char>& wav);
  bool keep(const platform::SoundClip& clip, const std::vector<char>& wav);

  platform::FileSystem& files_;
  platform::Studio& studio_;
  Answers& answers_;
  std::ostream& out_;
  std::string folder_;  // ends in a separator
  voice::OwnVoice own_;
  bool stopped_ = false;
};

}  // namespace console
