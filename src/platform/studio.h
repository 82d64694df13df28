// Where somebody records himself and listens to it: a microphone and a loudspeaker, in turn.
#pragma once

#include <span>
#include <vector>

namespace platform {

class Studio {
 public:
  virtual ~Studio() = default;
  // Begins to record one channel, and returns when the first sound has come. False: no microphone gives any.
  virtual bool record(int samplesPerSecond) = 0;
  // Ends it. What was recorded since: 1 is full scale.
  virtual std::vector<float> stop() = 0;
  // Plays a WAV file to its end. False: there is no loudspeaker.
  virtual bool play(std::span<const unsigned char> wav) = 0;
};

}  // namespace platform
