#include "volume/cls_af_master_volume.h"

#include <algorithm>
#include <cmath>

#include "platform/text.h"

namespace volume {
namespace {

constexpr std::size_t productNameLength = 32;

}  // namespace

clsAfMasterVolume::clsAfMasterVolume(platform::EndpointVolume& endpoint)
    : endpoint_(endpoint), muteEnabled_(endpoint.open()), volumeEnabled_(muteEnabled_) {}

bool clsAfMasterVolume::Mute() const {
  return muteEnabled_ && endpoint_.muted();
}

void clsAfMasterVolume::Mute(bool on) {
  if (muteEnabled_) endpoint_.setMuted(on);
}

int clsAfMasterVolume::Percent() const {
  if (!volumeEnabled_) return 0;
  // Halves go to the even number.
  return static_cast<int>(std::nearbyint(std::clamp(endpoint_.level(), 0.0, 1.0) * 100));
}

void clsAfMasterVolume::Percent(int wanted) {
  if (volumeEnabled_ && wanted >= 0 && wanted <= 100) endpoint_.setLevel(wanted / 100.0);
}

int clsAfMasterVolume::GetNumberOfDevices() const {
  return volumeEnabled_ ? endpoint_.channels() : 0;
}

std::string clsAfMasterVolume::GetActiveDeviceName() const {
  std::string name;
  if (volumeEnabled_) name = platform::trim(platform::left(endpoint_.deviceName(), productNameLength));
  return name.empty() ? "Not Identified" : name;
}

}  // namespace volume
