// A rider's own voice: recordings of his that are said instead of the bank's.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/sound_output.h"

namespace voice {

inline constexpr int longestSeconds = 15;  // of a recording

class OwnVoice {
 public:
  explicit OwnVoice(platform::FileSystem& files) : files_(files) {}

  // Finds the recordings that a folder holds now, and forgets all others: NUMBER.wav, or the number, a blank
  // and whatever the rider calls it. `folder` ends in a separator; if it is missing there are none.
  void lookIn(std::string folder);
  // What the rider is to be told of the folder: what of it cannot be said, and why. Empty where all is well.
  [[nodiscard]] std::string complaint() const;
  // Whether the prompt has a recording of his own that can be said.
  [[nodiscard]] bool has(int number) const;
  // The prompt as it is to be said, under its own name and text; null for a number that the bank lacks. What
  // was given stays good, whatever becomes of its file, until lookIn() is called again.
  [[nodiscard]] const platform::SoundClip* prompt(int number);

 private:
  enum class Verdict { Good, Unreadable, NoSound, TooLong, Silent, NoSuchPrompt };
  struct Kept {
    std::vector<unsigned char> wav;
    platform::SoundClip clip;
  };

  [[nodiscard]] static Verdict verdictOn(platform::RandomFile& file);
  [[nodiscard]] Verdict verdictOn(const std::string& name) const;
  [[nodiscard]] std::optional<Kept> read(int number, const platform::SoundClip& builtIn) const;

  platform::FileSystem& files_;
  std::string folder_;
  std::string unlisted_;                           // why the folder could not be listed
  std::map<int, std::vector<std::string>> names_;  // by number, the best one first
  std::map<int, std::optional<Kept>> said_;        // none: none of its files can be said
};

}  // namespace voice
