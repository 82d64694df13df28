// Microphone and loudspeaker of the sound server, for who records himself.
#pragma once

#include <functional>

#include "devices/pulse_connection.h"
#include "devices/pulse_output_level.h"
#include "devices/pulse_recorder.h"
#include "devices/pulse_sound_output.h"
#include "platform/studio.h"

namespace devices {

class PulseStudio final : public platform::Studio {
 public:
  // `giveUp` is asked while something is waited for or played, and ends it.
  explicit PulseStudio(std::function<bool()> giveUp);

  bool record(int samplesPerSecond) override;
  std::vector<float> stop() override;
  bool play(std::span<const unsigned char> wav) override;

 private:
  std::function<bool()> giveUp_;
  PulseConnection connection_{"Ventoria"};
  PulseOutputLevel level_{connection_};
  PulseSoundOutput output_;
  PulseRecorder recorder_{connection_};
};

}  // namespace devices
