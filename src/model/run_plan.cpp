#include "model/run_plan.h"

#include "model/vocabulary.h"

namespace model {

bool PlanRow::spoken() const {
  return planSequence == vocalAnnouncement;
}

std::vector<std::string> PlanRow::texts() const {
  return {planDuree,   planCadence, planRemarque, planSequence,
          planBraquet, planPlateau, planAnnonce,  planFreqCard};
}

void RunPlan::allocate(int last) {
  rows.assign(static_cast<std::size_t>(last) + 1, PlanRow{});
}

const PlanRow& RunPlan::current() const {
  return rows.at(static_cast<std::size_t>(sequenceCourante));
}

}  // namespace model
