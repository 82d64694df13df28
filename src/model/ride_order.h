// What a ride is made of when the list is handed over, and all that decides how long it takes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/run_plan.h"
#include "model/settings_file.h"
#include "model/time_value.h"
#include "platform/grid.h"

namespace model {

struct RideOrder {
  RunPlan plan;
  int sequences = 0;    // rows kept in the plan
  int passes = 1;       // through the plan
  TimeValue total = 0;  // as the list sums it up

  bool operator==(const RideOrder&) const = default;
};

// What the composed list orders: its ridden rows, in their order. Throws platform::Fault where the list has
// no total.
[[nodiscard]] RideOrder rideOrder(const platform::Grid& list);
// Each row of the list that is ridden has a duration that can be ridden.
[[nodiscard]] bool canBeRidden(const platform::Grid& list);

// The music behind a ride.
struct RideMusic {
  std::vector<std::string> ticked;  // names in the library's folder, in the order of the list
  bool repeats = false;             // from the first again after the last
  std::string loaded;               // path of the piece that the player has been asked for; empty: none yet

  bool operator==(const RideMusic&) const = default;
};

// A ride as it would be now.
struct WholeRide {
  RideOrder order;
  std::optional<Settings> settings;  // none: those of a first start
  RideMusic music;

  bool operator==(const WholeRide&) const = default;
};

}  // namespace model
