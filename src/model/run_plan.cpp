#include "model/run_plan.h"

namespace model {

void RunPlan::allocate(int rows) {
  for (auto* table : {&planDuree, &planCadence, &planRemarque, &planSequence, &planBraquet, &planPlateau,
                      &planAnnonce, &planFreqCard}) {
    table->assign(static_cast<std::size_t>(rows) + 1, {});
  }
}

std::vector<std::string> RunPlan::row(int number) const {
  const auto i = static_cast<std::size_t>(number);
  return {planDuree.at(i),   planCadence.at(i), planRemarque.at(i), planSequence.at(i),
          planBraquet.at(i), planPlateau.at(i), planAnnonce.at(i),  planFreqCard.at(i)};
}

}  // namespace model
