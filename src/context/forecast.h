// A ride's timeline, made bit by bit, so that nobody has to wait for it.
#pragma once

#include <memory>
#include <optional>

#include "context/rehearsals.h"

namespace context {

class Forecast {
 public:
  // Null: there is never one.
  explicit Forecast(Rehearsals* rehearsals) : rehearsals_(rehearsals) {}

  // Replaces the one that was there, or under way.
  void begin(const model::WholeRide& ride) {
    timeline_.reset();
    underWay_ = rehearsals_ != nullptr ? rehearsals_->begin(ride) : nullptr;
  }
  // Goes on for some milliseconds; true: there is no more to do.
  bool goOn() {
    if (underWay_ == nullptr) return true;
    if (!underWay_->goOn()) return false;
    timeline_ = underWay_->timeline();
    underWay_.reset();
    return true;
  }
  void drop() {
    underWay_.reset();
    timeline_.reset();
  }
  // None as long as it is not whole.
  [[nodiscard]] const std::optional<model::Timeline>& timeline() const { return timeline_; }

 private:
  Rehearsals* rehearsals_;
  std::unique_ptr<Rehearsal> underWay_;
  std::optional<model::Timeline> timeline_;
};

}  // namespace context
