// Rides that nobody rides: how long one really takes once a voice speaks, told by the program itself on a
// clock of its own. Nothing of the rider's is touched by it, and nothing sounds.
#pragma once

#include <memory>

#include "model/ride_order.h"
#include "model/timeline.h"

namespace context {

// One that is under way; its end cancels it.
class Rehearsal {
 public:
  virtual ~Rehearsal() = default;
  // Goes on for some milliseconds of real time. True: it is over, and the timeline is whole.
  virtual bool goOn() = 0;
  [[nodiscard]] virtual const model::Timeline& timeline() const = 0;
};

class Rehearsals {
 public:
  virtual ~Rehearsals() = default;
  [[nodiscard]] virtual std::unique_ptr<Rehearsal> begin(const model::WholeRide& ride) = 0;
};

}  // namespace context
