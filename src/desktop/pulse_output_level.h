// The level of this program's own streams: prompts and music alike, whichever library plays them.
#pragma once

#include <chrono>

#include "desktop/pulse_connection.h"
#include "platform/output_level.h"

namespace desktop {

class PulseOutputLevel final : public platform::OutputLevel {
 public:
  explicit PulseOutputLevel(PulseConnection& connection) : connection_(connection) {}
  ~PulseOutputLevel() override;

  // Asks the server for the streams and returns; they are set as the answer comes in.
  void set(std::uint16_t left, std::uint16_t right) override;

 private:
  void found(const pa_sink_input_info& input);
  // Whether nothing is under way; disposes of what has ended. Under a lock.
  bool idle();

  PulseConnection& connection_;
  pa_operation* asking_ = nullptr;
  bool known_ = false;  // whether left_ and right_ were asked for already
  std::uint16_t left_ = 0;
  std::uint16_t right_ = 0;
  std::chrono::steady_clock::time_point askedAt_{};
};

}  // namespace desktop
