// A range of heart rates to train in.
#pragma once

namespace model {

struct HeartZone {
  double from = 0;  // bpm, whole
  double to = 0;    // bpm, whole
  bool operator==(const HeartZone&) const = default;
};

}  // namespace model
