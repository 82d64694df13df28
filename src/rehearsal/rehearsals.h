// Rides on a program of their own, on a simulated clock and simulated devices.
#pragma once

#include <string>

#include "context/rehearsals.h"
#include "platform/file_system.h"

namespace rehearsal {

class Rehearsals final : public context::Rehearsals {
 public:
  // `folder` is the rider's program folder: from there come the lengths of his announcements and his music.
  Rehearsals(platform::FileSystem& files, std::string folder) : files_(files), folder_(std::move(folder)) {}

  [[nodiscard]] std::unique_ptr<context::Rehearsal> begin(const model::WholeRide& ride) override;
  // The same, with the countdown started that long after a whole second on the wall: a ride's waits end on
  // whole seconds, so the first of them is that much shorter, or longer.
  [[nodiscard]] std::unique_ptr<context::Rehearsal> begin(const model::WholeRide& ride,
                                                          platform::Instant afterWholeSecond);
  // To the end, at once.
  [[nodiscard]] model::Timeline whole(const model::WholeRide& ride, platform::Instant afterWholeSecond = {});

 private:
  platform::FileSystem& files_;
  std::string folder_;
};

}  // namespace rehearsal
