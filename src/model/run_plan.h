// The run plan: what the rider rides, one row a sequence, filled by the hand-over and walked by the ride.
#pragma once

#include <string>
#include <vector>

namespace model {

struct PlanRow {
  std::string planDuree;     // "HH:MM:SS", "00:00:00" on an "Annonce Vocale" row
  std::string planCadence;   // revolutions a minute, a number or a range
  std::string planRemarque;  // a free remark; the hand-over leaves it empty
  std::string planSequence;  // kind of sequence
  std::string planBraquet;   // gear
  std::string planPlateau;   // chainring
  std::string planAnnonce;   // file name of a personal announcement, or "-----"
  std::string planFreqCard;  // heart-rate target

  // A row that only plays an announcement: it has no time of its own.
  [[nodiscard]] bool spoken() const;
  // The eight texts, in the order above.
  [[nodiscard]] std::vector<std::string> texts() const;

  bool operator==(const PlanRow&) const = default;
};

struct RunPlan {
  // From row 1; row 0 stays empty: the ride reads it before the first sequence.
  std::vector<PlanRow> rows{PlanRow{}};
  int sequenceCourante = 0;  // row being ridden; 0 before the first

  // A row is being ridden: the countdown is behind, and neither the end nor a cancel has come.
  [[nodiscard]] bool started() const { return sequenceCourante > 0; }
  // Rows 0 to `last`, all empty.
  void allocate(int last);
  // The row being ridden.
  [[nodiscard]] const PlanRow& current() const;

  bool operator==(const RunPlan&) const = default;
};

}  // namespace model
