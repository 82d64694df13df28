// The master volume and mute of the default playback device. Whatever the device lacks reads as off or 0, and
// writing to it does nothing.
#pragma once

#include <string>

#include "platform/endpoint_volume.h"

namespace volume {

class clsAfMasterVolume {
 public:
  // Asks once, here, what the device can do; after a change of the default device a new instance is needed.
  explicit clsAfMasterVolume(platform::EndpointVolume& endpoint);

  // The device is reached by its endpoint, never by a mixer of the older kind.
  [[nodiscard]] static bool UseAudioInterface() { return true; }
  [[nodiscard]] bool MuteEnabled() const { return muteEnabled_; }
  [[nodiscard]] bool VolumeEnabled() const { return volumeEnabled_; }
  [[nodiscard]] bool Mute() const;
  void Mute(bool on);
  [[nodiscard]] int Percent() const;
  void Percent(int wanted);  // 0 to 100; others are ignored
  // The channels of the device, not the number of cards.
  [[nodiscard]] int GetNumberOfDevices() const;
  [[nodiscard]] std::string GetActiveDeviceName() const;

 private:
  platform::EndpointVolume& endpoint_;
  bool muteEnabled_;
  bool volumeEnabled_;
};

}  // namespace volume
