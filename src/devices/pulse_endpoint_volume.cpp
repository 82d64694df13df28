#include "devices/pulse_endpoint_volume.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace devices {

namespace {

double fractionOf(const pa_cvolume& volume) {
  return double(pa_cvolume_max(&volume)) / PA_VOLUME_NORM;
}

}  // namespace

PulseEndpointVolume::PulseEndpointVolume(PulseConnection& connection, HandOver handOver)
    : connection_(connection), handOver_(std::move(handOver)) {
  connection_.onLoss([this] { tellOfChange(); });
}

PulseEndpointVolume::~PulseEndpointVolume() {
  connection_.onLoss({});
  stopFollowing();
}

void PulseEndpointVolume::tellOfChange() {
  handOver_([this] { changes_.wakeTimers(); });
}

platform::Observable* PulseEndpointVolume::changes() {
  const PulseConnection::Lock lock(connection_);
  if (sink_.empty()) return &changes_;  // only open() can find another device
  const bool told = followed_ && PA_CONTEXT_IS_GOOD(pa_context_get_state(followed_));
  return told ? &changes_ : nullptr;
}

void PulseEndpointVolume::stopFollowing() {
  if (!followed_) return;
  const PulseConnection::Lock lock(connection_);
  pa_context_set_subscribe_callback(followed_, nullptr, nullptr);
  for (pa_operation* request : requests_) {
    pa_operation_cancel(request);
    pa_operation_unref(request);
  }
  requests_.clear();
  pa_context_unref(followed_);
  followed_ = nullptr;
  device_.reset();
  writes_ = 0;
}

void PulseEndpointVolume::answered(pa_context* context, const pa_sink_info* sink, int end, void* self) {
  auto& volume = *static_cast<PulseEndpointVolume*>(self);
  const std::optional<Device> before = volume.device_;
  if (end < 0 && pa_context_errno(context) == PA_ERR_NOENTITY)
    volume.keepRequest(pa_context_get_server_info(context, &moved, self));
  if (sink && volume.writes_ == 0)
    volume.device_ = Device{sink->volume, sink->mute != 0, sink->description ? sink->description : ""};
  if (volume.device_ != before) volume.tellOfChange();
}

// The device has gone, such as headphones that were pulled: what played there plays on the default device
// now.
void PulseEndpointVolume::moved(pa_context*, const pa_server_info* server, void* self) {
  auto& volume = *static_cast<PulseEndpointVolume*>(self);
  if (server == nullptr) return;
  const std::string name = server->default_sink_name ? server->default_sink_name : "";
  if (name.empty() || name == noCard || name == volume.sink_) {
    volume.device_.reset();
    return volume.tellOfChange();
  }
  volume.sink_ = name;
  volume.keepRequest(volume.askForDevice());
}

void PulseEndpointVolume::changed(pa_context*, pa_subscription_event_type_t, uint32_t, void* self) {
  auto& volume = *static_cast<PulseEndpointVolume*>(self);
  volume.keepRequest(volume.askForDevice());
}

void PulseEndpointVolume::done(pa_context* context, int, void* self) {
  auto& volume = *static_cast<PulseEndpointVolume*>(self);
  if (context == volume.followed_ && --volume.writes_ == 0) changed(context, {}, 0, self);
}

pa_operation* PulseEndpointVolume::askForDevice() {
  if (sink_.empty()) return nullptr;
  return pa_context_get_sink_info_by_name(followed_, sink_.c_str(), &answered, this);
}

bool PulseEndpointVolume::follow() {
  if (!connection_.ready()) {
    // What a server that hangs has told last still stands.
    if (followed_ && connection_.hanging() && followed_ == connection_.context()) return true;
    stopFollowing();
    return false;
  }
  if (followed_ == connection_.context()) return true;
  stopFollowing();
  pa_operation* request = nullptr;
  {
    const PulseConnection::Lock lock(connection_);
    followed_ = pa_context_ref(connection_.context());
    pa_context_set_subscribe_callback(followed_, &changed, this);
    keepRequest(pa_context_subscribe(followed_, PA_SUBSCRIPTION_MASK_SINK, nullptr, nullptr));
    request = askForDevice();
  }
  connection_.finish(request);
  return true;
}

bool PulseEndpointVolume::open() {
  if (!follow()) {
    sink_.clear();
    return false;
  }
  std::string found;
  pa_operation* request = nullptr;
  {
    const PulseConnection::Lock lock(connection_);
    request = pa_context_get_server_info(
        followed_,
        [](pa_context*, const pa_server_info* server, void* name) {
          if (server && server->default_sink_name)
            *static_cast<std::string*>(name) = server->default_sink_name;
        },
        &found);
  }
  if (!connection_.finish(request) && connection_.hanging()) return currentDevice().has_value();
  {
    const PulseConnection::Lock lock(connection_);
    sink_ = found == noCard ? std::string() : found;
    device_.reset();
    request = askForDevice();
  }
  connection_.finish(request);
  return currentDevice().has_value();
}

std::optional<PulseEndpointVolume::Device> PulseEndpointVolume::currentDevice() {
  deviceSeen_ = false;
  if (!follow()) return std::nullopt;
  const PulseConnection::Lock lock(connection_);
  deviceSeen_ = device_.has_value();
  return device_;
}

bool PulseEndpointVolume::muted() {
  const std::optional<Device> device = currentDevice();
  return device && device->muted;
}

double PulseEndpointVolume::level() {
  const std::optional<Device> device = currentDevice();
  return device ? fractionOf(device->volume) : 0;
}

int PulseEndpointVolume::channels() {
  const std::optional<Device> device = currentDevice();
  return device ? device->volume.channels : 0;
}

std::string PulseEndpointVolume::deviceName() {
  const std::optional<Device> device = currentDevice();
  return device ? device->description : std::string();
}

PulseEndpointVolume::Device* PulseEndpointVolume::writableDevice() {
  const bool alive = followed_ && PA_CONTEXT_IS_GOOD(pa_context_get_state(followed_));
  return deviceSeen_ && alive && device_ ? &*device_ : nullptr;
}

void PulseEndpointVolume::keepRequest(pa_operation* request) {
  std::erase_if(requests_, [](pa_operation* old) {
    if (pa_operation_get_state(old) == PA_OPERATION_RUNNING) return false;
    pa_operation_unref(old);
    return true;
  });
  if (request) requests_.push_back(request);
}

void PulseEndpointVolume::setMuted(bool muted) {
  if (!followed_) return;
  const PulseConnection::Lock lock(connection_);
  Device* device = writableDevice();
  if (!device || device->muted == muted) return;
  device->muted = muted;
  ++writes_;
  keepRequest(pa_context_set_sink_mute_by_name(followed_, sink_.c_str(), muted, &done, this));
}

void PulseEndpointVolume::setLevel(double level) {
  if (!followed_) return;
  const PulseConnection::Lock lock(connection_);
  Device* device = writableDevice();
  // The screen writes back the level that it read, rounded and capped: that must not change the volume.
  constexpr double halfPercent = 0.005;
  if (!device || std::abs(std::min(fractionOf(device->volume), 1.0) - level) <= halfPercent) return;
  pa_cvolume_scale(&device->volume, static_cast<pa_volume_t>(std::lround(level * PA_VOLUME_NORM)));
  ++writes_;
  keepRequest(pa_context_set_sink_volume_by_name(followed_, sink_.c_str(), &device->volume, &done, this));
}

}  // namespace devices
