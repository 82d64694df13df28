#include "devices/pulse_output_level.h"

#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>

namespace devices {
namespace {

// How often to look for streams that were opened after the level was chosen.
constexpr std::chrono::milliseconds askInterval{1000};

constexpr pa_channel_position_mask_t leftSide =
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_FRONT_LEFT) |
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_REAR_LEFT) |
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_SIDE_LEFT) |
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_FRONT_LEFT_OF_CENTER);
constexpr pa_channel_position_mask_t rightSide =
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_FRONT_RIGHT) |
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_REAR_RIGHT) |
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_SIDE_RIGHT) |
    PA_CHANNEL_POSITION_MASK(PA_CHANNEL_POSITION_FRONT_RIGHT_OF_CENTER);

bool isOwn(const pa_sink_input_info& input) {
  const char* process = pa_proplist_gets(input.proplist, PA_PROP_APPLICATION_PROCESS_ID);
  return process != nullptr && process == std::to_string(getpid());
}

}  // namespace

PulseOutputLevel::~PulseOutputLevel() {
  const PulseConnection::Lock lock(connection_);
  for (pa_operation* request : {asking_, setting_}) {
    if (request == nullptr) continue;
    pa_operation_cancel(request);
    pa_operation_unref(request);
  }
}

pa_operation* PulseOutputLevel::askForStreams() {
  return pa_context_get_sink_input_info_list(
      connection_.context(),
      [](pa_context*, const pa_sink_input_info* input, int end, void* self) {
        if (end == 0 && input != nullptr) static_cast<PulseOutputLevel*>(self)->applyTo(*input);
      },
      this);
}

bool PulseOutputLevel::finishAsking() {
  if (asking_ == nullptr) return true;
  if (pa_operation_get_state(asking_) == PA_OPERATION_RUNNING) return false;
  pa_operation_unref(asking_);
  asking_ = nullptr;
  return true;
}

bool PulseOutputLevel::set(std::uint16_t left, std::uint16_t right) {
  const auto now = std::chrono::steady_clock::now();
  const bool changed = !known_ || left != left_ || right != right_;
  if (!changed && now - askedAt_ < askInterval) return true;
  askedAt_ = now;
  const bool ready = connection_.ready();
  const PulseConnection::Lock lock(connection_);
  left_ = left;
  right_ = right;
  known_ = false;
  if (!ready)
    return !connection_.hanging();  // where no server is no stream is, and each new one gets the level
  known_ = finishAsking();          // the answer to an earlier request may have set some streams already
  if (known_) asking_ = askForStreams();
  return known_;
}

void PulseOutputLevel::applyToAll() {
  if (!connection_.ready()) return;
  pa_operation* request = nullptr;
  {
    const PulseConnection::Lock lock(connection_);
    request = askForStreams();
  }
  connection_.finish(request);
  {
    const PulseConnection::Lock lock(connection_);
    request = std::exchange(setting_, nullptr);
  }
  connection_.finish(request);
}

pa_cvolume PulseOutputLevel::volumeOf(const pa_channel_map& channels) const {
  pa_cvolume volume;
  volume.channels = channels.channels;
  for (std::uint8_t i = 0; i < channels.channels; ++i) {
    const auto side = PA_CHANNEL_POSITION_MASK(channels.map[i]);
    const bool left = (side & leftSide) != 0;
    const bool right = (side & rightSide) != 0;
    const std::uint16_t level = left ? left_ : right ? right_ : std::max(left_, right_);
    volume.values[i] = pa_sw_volume_from_linear(level / 65535.0);
  }
  return volume;
}

void PulseOutputLevel::applyTo(const pa_sink_input_info& input) {
  if (!isOwn(input) || input.has_volume == 0 || input.volume_writable == 0) return;
  const pa_cvolume wanted = volumeOf(input.channel_map);
  if (pa_cvolume_equal(&wanted, &input.volume) != 0) return;
  if (setting_ != nullptr) pa_operation_unref(setting_);
  setting_ = pa_context_set_sink_input_volume(connection_.context(), input.index, &wanted, nullptr, nullptr);
}

}  // namespace devices
