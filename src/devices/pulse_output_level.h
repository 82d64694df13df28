// The level of this program's own streams: prompts and music alike, whichever library plays them.
#pragma once

#include <chrono>

#include "devices/pulse_connection.h"
#include "platform/output_level.h"

namespace devices {

class PulseOutputLevel final : public platform::OutputLevel {
 public:
  explicit PulseOutputLevel(PulseConnection& connection) : connection_(connection) {}
  ~PulseOutputLevel() override;

  // Asks the server for the streams and returns; they are set as the answer comes in.
  void set(std::uint16_t left, std::uint16_t right) override;
  // The same with the level as it is: a library may have opened a stream that nobody asked for.
  void reapply() { set(left_, right_); }
  // Returns when every stream that there is now has the level: before one of them begins to sound.
  void applyToAll();
  // The level for a stream of these channels that is about to be opened.
  [[nodiscard]] pa_cvolume volumeOf(const pa_channel_map& channels) const;

 private:
  // Asks for the streams and sets those found; null without an answer to come. Under a lock.
  pa_operation* askForStreams();
  void applyTo(const pa_sink_input_info& input);
  // Whether nothing is under way; disposes of what has ended. Under a lock.
  bool finishAsking();

  PulseConnection& connection_;
  pa_operation* asking_ = nullptr;
  bool known_ = false;               // whether left_ and right_ were asked for already
  pa_operation* setting_ = nullptr;  // the last of what `applyTo` has set
  std::uint16_t left_ = 0xFFFF;
  std::uint16_t right_ = 0xFFFF;
  std::chrono::steady_clock::time_point askedAt_{};
};

}  // namespace devices
