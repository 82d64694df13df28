// The master volume at the sound server. What the server tells by itself is kept, so that a look costs
// nothing and a change by another program shows at the next one.
#pragma once

#include <pulse/pulseaudio.h>

#include <optional>
#include <string>
#include <vector>

#include "devices/pulse_connection.h"
#include "platform/endpoint_volume.h"

namespace devices {

class PulseEndpointVolume final : public platform::EndpointVolume {
 public:
  explicit PulseEndpointVolume(PulseConnection& connection) : connection_(connection) {}
  ~PulseEndpointVolume() override;

  bool open() override;
  bool muted() override;
  void setMuted(bool muted) override;
  // The plain fraction of the server's full volume, which is what people see in their desktop.
  double level() override;
  void setLevel(double level) override;
  int channels() override;
  std::string deviceName() override;

 private:
  struct Device {
    pa_cvolume volume{};
    bool muted = false;
    std::string description;
  };

  // Follows the server that answers now, which may have come back meanwhile. False: none does.
  bool follow();
  void stopFollowing();
  [[nodiscard]] std::optional<Device> currentDevice();
  // The device to be written to; null where the last look found none, so that nothing invented is written.
  [[nodiscard]] Device* writableDevice();
  [[nodiscard]] pa_operation* askForDevice();
  // Keeps a request, so that its answer never comes to somebody who is gone.
  void keepRequest(pa_operation* request);
  static void answered(pa_context* context, const pa_sink_info* sink, int end, void* self);
  static void changed(pa_context* context, pa_subscription_event_type_t what, uint32_t index, void* self);
  static void done(pa_context* context, int success, void* self);

  PulseConnection& connection_;
  pa_context* followed_ = nullptr;  // held, so that its address cannot come back as another's
  std::string sink_;
  std::optional<Device> device_;  // with all below, touched under the connection's lock
  std::vector<pa_operation*> requests_;
  int writes_ = 0;           // on their way: what the server answers meanwhile is older than they are
  bool deviceSeen_ = false;  // whether the last look found a device
};

}  // namespace devices
