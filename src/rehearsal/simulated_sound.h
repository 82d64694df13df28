// A loudspeaker that writes each sound to the journal and, where wanted, lets its length pass.
#pragma once

#include <optional>
#include <string>

#include "platform/event_loop.h"
#include "platform/file_system.h"
#include "platform/sound_output.h"
#include "rehearsal/journal.h"

namespace rehearsal {

enum class SoundMode {
  None,     // no output device
  Instant,  // a sound takes no time
  Timed,    // a sound takes its own length
};

class SimulatedSound final : public platform::SoundOutput {
 public:
  SimulatedSound(SoundMode mode, platform::FileSystem& files, std::string folder, Journal& journal)
      : mode_(mode), files_(files), folder_(std::move(folder)), journal_(journal) {}

  // The loop that a timed sound blocks; to be given before the first sound.
  void attach(platform::EventLoop& loop) { loop_ = &loop; }

  bool hasDevice() override { return mode_ != SoundMode::None; }
  void play(const platform::SoundClip& clip) override;
  void playFile(const std::string& path) override;

 private:
  void letPass(std::optional<platform::Instant> length);

  SoundMode mode_;
  platform::FileSystem& files_;
  std::string folder_;
  Journal& journal_;
  platform::EventLoop* loop_ = nullptr;
};

// A path as the journal writes it: relative where it lies inside `folder`.
[[nodiscard]] std::string pathInside(const std::string& folder, const std::string& path);

}  // namespace rehearsal
