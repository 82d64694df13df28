// The volume of the sound server's default device. The server reports each change, also by other programs,
// and the last report is kept, so that reading the volume sends no request and nobody need look for changes.
#pragma once

#include <pulse/pulseaudio.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "devices/pulse_connection.h"
#include "platform/endpoint_volume.h"

namespace devices {

class PulseEndpointVolume final : public platform::EndpointVolume {
 public:
  // Called on any thread with what is to be done soon on the program's own, and no more once this is
  // destroyed.
  using HandOver = std::function<void(std::function<void()>)>;

  PulseEndpointVolume(PulseConnection& connection, HandOver handOver);
  ~PulseEndpointVolume() override;

  bool open() override;
  bool muted() override;
  void setMuted(bool muted) override;
  // As a fraction of the server's full volume, like desktops show it; above 1 if amplified.
  double level() override;
  void setLevel(double level) override;
  int channels() override;
  std::string deviceName() override;
  // Null while no server answers that could tell: the next read looks for one.
  [[nodiscard]] platform::Observable* changes() override;

 private:
  struct Device {
    pa_cvolume volume{};
    bool muted = false;
    std::string description;

    bool operator==(const Device& other) const {
      return pa_cvolume_equal(&volume, &other.volume) != 0 && muted == other.muted &&
             description == other.description;
    }
  };

  void tellOfChange();
  // Subscribes to the server that answers now, which may have restarted. False if none answers.
  bool follow();
  void stopFollowing();
  [[nodiscard]] std::optional<Device> currentDevice();
  // The device to write to; null if the last read found none, since the caller then knows no level to set.
  [[nodiscard]] Device* writableDevice();
  [[nodiscard]] pa_operation* askForDevice();
  // Remembers a request, to cancel it if this object is destroyed before the answer comes.
  void keepRequest(pa_operation* request);
  static void answered(pa_context* context, const pa_sink_info* sink, int end, void* self);
  static void moved(pa_context* context, const pa_server_info* server, void* self);
  static void changed(pa_context* context, pa_subscription_event_type_t what, uint32_t index, void* self);
  static void done(pa_context* context, int success, void* self);

  PulseConnection& connection_;
  HandOver handOver_;
  platform::Observable changes_;
  pa_context* followed_ = nullptr;  // referenced, so that no new context can get its address
  std::string sink_;                // this and all below are used under the connection's lock
  std::optional<Device> device_;
  std::vector<pa_operation*> requests_;
  int writes_ = 0;           // not confirmed yet; a report that comes meanwhile is out of date
  bool deviceSeen_ = false;  // whether the last read found a device
};

}  // namespace devices
