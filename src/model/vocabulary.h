// The words of a training session: the values that a sequence's fields may take, in the order of their lists,
// and the texts that mark what a cell is. All are compared as exact texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace model {

inline constexpr std::string_view vocalAnnouncement = "Annonce Vocale";
inline constexpr std::string_view noMeaning = "-----";      // a cell that has no meaning on its row
inline constexpr std::string_view emptyCell = " ";          // a cell that still waits for a value
inline constexpr std::string_view noDuration = "00:00:00";  // a duration not chosen yet
inline constexpr std::string_view noTarget = "000";         // the heart-rate cell of a new row
inline constexpr std::string_view endOfList = "----------------";
inline constexpr std::string_view handMade = "Ajouter Séquence =>";
inline constexpr std::string_view untitledSession = "Nouvelle Séance d'Essais";

// The choices of a cell. All but the two about repetition begin with a blank entry.
[[nodiscard]] const std::vector<std::string>& sequenceKinds();
[[nodiscard]] const std::vector<std::string>& cadences();      // revolutions a minute
[[nodiscard]] const std::vector<std::string>& chainrings();    // words, then teeth
[[nodiscard]] const std::vector<std::string>& gears();         // words, then teeth
[[nodiscard]] const std::vector<std::string>& repeatSwitch();  // "Oui", "Non"
[[nodiscard]] const std::vector<std::string>& repeatCounts();  // "0", "2" to "20"
[[nodiscard]] const std::vector<std::string>& targetPercents();
// "00" to "23" or "59", two digits each.
[[nodiscard]] std::vector<std::string> twoDigits(int last);
// Whole numbers from `first` to `last` as plain text.
[[nodiscard]] std::vector<std::string> numbers(int first, int last, int step = 1);

}  // namespace model
