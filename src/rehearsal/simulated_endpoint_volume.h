// The simulated machine's master volume, of a stereo loudspeaker; changes are written to the journal.
#pragma once

#include <cmath>

#include "platform/endpoint_volume.h"
#include "rehearsal/journal.h"
#include "rehearsal/simulated_machine.h"

namespace rehearsal {

class SimulatedEndpointVolume final : public platform::EndpointVolume {
 public:
  SimulatedEndpointVolume(SimulatedMachine& machine, Journal& journal)
      : machine_(machine), journal_(journal) {}

  bool open() override { return machine_.volume.has_value(); }
  bool muted() override { return machine_.muted; }
  void setMuted(bool muted) override {
    machine_.muted = muted;
    machine_.volumeChanges.wakeTimers();
    journal_.write("master", {muted ? "mute 1" : "mute 0"});
  }
  double level() override { return machine_.volume.value_or(0) / 100.0; }
  void setLevel(double level) override {
    machine_.volume = static_cast<int>(std::lround(level * 100));
    machine_.volumeChanges.wakeTimers();
    journal_.write("master", {"percent " + std::to_string(*machine_.volume)});
  }
  int channels() override { return 2; }
  std::string deviceName() override { return "Haut-parleurs simulés"; }
  platform::Observable* changes() override { return &machine_.volumeChanges; }

 private:
  SimulatedMachine& machine_;
  Journal& journal_;
};

}  // namespace rehearsal
