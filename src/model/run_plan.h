// The run plan: what the rider rides, one row a sequence, filled by the hand-over and walked by the ride.
#pragma once

#include <string>
#include <vector>

namespace model {

// Eight texts for each sequence, from row 1; row 0 exists and stays empty.
struct RunPlan {
  std::vector<std::string> planDuree{1};     // "HH:MM:SS", "00:00:00" on an "Annonce Vocale" row
  std::vector<std::string> planCadence{1};   // revolutions a minute, a number or a range
  std::vector<std::string> planRemarque{1};  // a free remark; the hand-over leaves it empty
  std::vector<std::string> planSequence{1};  // kind of sequence
  std::vector<std::string> planBraquet{1};   // gear
  std::vector<std::string> planPlateau{1};   // chainring
  std::vector<std::string> planAnnonce{1};   // file name of a personal announcement, or "-----"
  std::vector<std::string> planFreqCard{1};  // heart-rate target

  // Rows 0 to `rows`, all empty.
  void allocate(int rows);
  // The eight texts of a row, in the order above.
  [[nodiscard]] std::vector<std::string> row(int number) const;
};

}  // namespace model
