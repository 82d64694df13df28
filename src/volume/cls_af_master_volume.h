// The master volume and mute of the default playback device, with the contract of the riders' vocabulary:
// whatever is not there reads as off or 0 and ignores what is written.
#pragma once

#include <string>

#include "platform/endpoint_volume.h"

namespace volume {

class clsAfMasterVolume {
 public:
  // What the device can do is found once, here; a change of default device shows in a new instance.
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
