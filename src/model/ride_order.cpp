#include "model/ride_order.h"

#include "model/grid_rows.h"
#include "model/numbers.h"
#include "model/vocabulary.h"
#include "platform/text.h"

namespace model {
namespace {

PlanRow planRow(const platform::Grid& list, int row) {
  PlanRow planned;
  planned.planSequence = list.text(row, column::sequence);
  planned.planCadence = list.text(row, column::cadence);
  planned.planPlateau = list.text(row, column::chainring);
  planned.planBraquet = list.text(row, column::gear);
  planned.planAnnonce = platform::trim(list.text(row, column::announcement));
  planned.planFreqCard = list.text(row, column::heartRate);
  planned.planDuree = planned.spoken() ? std::string(noDuration) : list.text(row, column::duration);
  return planned;
}

}  // namespace

RideOrder rideOrder(const platform::Grid& list) {
  RideOrder order;
  order.total = timeValue(list.text(1, column::duration));
  order.passes = std::max(1, lenientInteger(list.text(1, column::times)));
  for (int row = 2; row <= list.rowCount(); ++row) {
    if (isRidden(list, row)) order.plan.rows.push_back(planRow(list, row));
  }
  order.sequences = static_cast<int>(order.plan.rows.size()) - 1;
  // One place for each row of the list, the unused ones behind.
  order.plan.rows.resize(std::max<std::size_t>(1, static_cast<std::size_t>(list.rowCount())));
  return order;
}

bool canBeRidden(const platform::Grid& list) {
  for (int row = 2; row <= list.rowCount(); ++row) {
    if (isRidden(list, row) && !hasDuration(list, row)) return false;
  }
  return true;
}

}  // namespace model
