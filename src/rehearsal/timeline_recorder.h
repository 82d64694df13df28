// Writes down when a rehearsed ride does what.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "model/shared_state.h"
#include "model/timeline.h"
#include "platform/media_commands.h"
#include "platform/sound_output.h"

namespace rehearsal {

class TimelineRecorder {
 public:
  explicit TimelineRecorder(const platform::Clock& clock) : clock_(clock) {}

  // From now on, moments count from here. Before, nothing is written down.
  void begin(const model::SharedState& state);
  // To be called whenever time may pass: notices where the ride has come to.
  void look();
  // Nothing more comes.
  void end();

  void sound(int prompt, std::string name, const std::function<void()>& play);
  void mediaCommand(const std::string& command);
  [[nodiscard]] const model::Timeline& timeline() const { return timeline_; }

 private:
  [[nodiscard]] model::Moment now() const { return clock_.now() - start_; }
  void endRow();
  void endHold();

  const platform::Clock& clock_;
  const model::SharedState* state_ = nullptr;  // null before the beginning
  platform::Instant start_{0};
  int row_ = 0;        // being ridden; 0: none
  int pass_ = 0;       // of it
  bool open_ = false;  // a piece of music
  bool held_ = false;
  model::Timeline timeline_;
};

// A loudspeaker and a player that are written down and heard elsewhere.
class RecordedSound final : public platform::SoundOutput {
 public:
  RecordedSound(platform::SoundOutput& inner, TimelineRecorder& recorder)
      : inner_(inner), recorder_(recorder) {}
  bool hasDevice() override { return inner_.hasDevice(); }
  void play(const platform::SoundClip& clip) override {
    recorder_.sound(clip.number, std::string(clip.name), [&] { inner_.play(clip); });
  }
  void playFile(const std::string& path) override {
    recorder_.sound(0, path, [&] { inner_.playFile(path); });
  }

 private:
  platform::SoundOutput& inner_;
  TimelineRecorder& recorder_;
};

class RecordedMedia final : public platform::MediaCommands {
 public:
  RecordedMedia(platform::MediaCommands& inner, TimelineRecorder& recorder)
      : inner_(inner), recorder_(recorder) {}
  std::string send(const std::string& command) override {
    recorder_.mediaCommand(command);
    return inner_.send(command);
  }
  void workIn(const std::string& folder) override { inner_.workIn(folder); }

 private:
  platform::MediaCommands& inner_;
  TimelineRecorder& recorder_;
};

}  // namespace rehearsal
