#include "console/profile.h"

#include <algorithm>
#include <array>
#include <vector>

#include "model/effort_family.h"
#include "model/time_value.h"

namespace console {
namespace {

struct Step {
  int ends;  // seconds from the start of the pass
  int height;
};

std::vector<Step> stepsOf(const model::RunPlan& plan, int rows) {
  std::vector<Step> steps;
  int elapsed = 0;
  for (int number = 1; number <= rows; ++number) {
    const model::PlanRow& row = plan.rows[static_cast<std::size_t>(number)];
    elapsed += model::parseSeconds(row.planDuree).value_or(0);
    const auto family = model::effortFamily(row.planSequence);
    steps.push_back({elapsed, static_cast<int>(model::effortHeight(family, row.planFreqCard))});
  }
  return steps;
}

const char* blockFor(int percent) {
  static constexpr std::array blocks{"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
  return blocks.at(static_cast<std::size_t>(std::clamp(percent * 8 / 101, 0, 7)));
}

}  // namespace

Profile profileOf(const model::SharedState& state, int width) {
  const int rows = std::min(state.nbSequences, static_cast<int>(state.plan.rows.size()) - 1);
  const std::vector<Step> steps = stepsOf(state.plan, rows);
  Profile profile;
  if (steps.empty() || steps.back().ends == 0 || width < 1) return profile;
  const double total = steps.back().ends;
  auto step = steps.begin();
  for (int column = 0; column < width; ++column) {
    const double middle = (column + 0.5) * total / width;
    while (step + 1 != steps.end() && step->ends <= middle) ++step;
    profile.blocks += blockFor(step->height);
  }
  if (state.plan.sequenceCourante < 1 || state.plan.sequenceCourante > rows) return profile;
  const auto current = static_cast<std::size_t>(state.plan.sequenceCourante);
  const double before = current == 1 ? 0 : steps[current - 2].ends;
  const double ridden = before + state.ecouleSequence * model::secondsADay;
  profile.place = std::clamp(static_cast<int>(ridden / total * width), 0, width - 1);
  return profile;
}

}  // namespace console
