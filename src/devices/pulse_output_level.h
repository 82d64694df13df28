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

  // 0 to 65535 on each side. Returns at once; the streams are set when the server's answer comes in.
  bool set(std::uint16_t left, std::uint16_t right) override;
  // Sets the same level again, for streams that a library has opened since.
  void reapply() { set(left_, right_); }
  // Waits until every open stream has the level. To be called before one of them begins to sound.
  void applyToAll();
  // The level for a stream of these channels that is about to be opened.
  [[nodiscard]] pa_cvolume volumeOf(const pa_channel_map& channels) const;

 private:
  // Asks for the streams and sets those found; null if the request was refused. Needs a lock.
  pa_operation* askForStreams();
  void applyTo(const pa_sink_input_info& input);
  // Whether no request is under way; frees one that has ended. Needs a lock.
  bool finishAsking();

  PulseConnection& connection_;
  pa_operation* asking_ = nullptr;
  bool known_ = false;               // whether a request with the present level was sent
  pa_operation* setting_ = nullptr;  // the last request of applyTo()
  std::uint16_t left_ = 0xFFFF;
  std::uint16_t right_ = 0xFFFF;
  std::chrono::steady_clock::time_point askedAt_{};
};

}  // namespace devices
