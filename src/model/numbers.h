// Reading and writing numbers as the system's texts have them. Nothing depends on the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace model {

// Lenient: blanks are passed over, leading digits (with a sign, a decimal point) count, anything else gives
// 0.
[[nodiscard]] double lenientNumber(std::string_view text);
// The same, cut to a whole number and kept within an int.
[[nodiscard]] int lenientInteger(std::string_view text);
// Strict: the whole text, blanks at its ends aside, must be a number; a platform::Fault otherwise.
[[nodiscard]] double strictNumber(std::string_view text);
// The plain conversion to text: whole numbers without decimals, others with as few digits as tell them;
// never an exponent, nor what rounding leaves behind the fifteenth digit.
[[nodiscard]] std::string plainNumber(double value);
// The format "###" of heart rates: rounded to a whole number, halves away from zero; empty for 0.
[[nodiscard]] std::string formatBpm(double value);
// The line that a typed number stands for in a list, "7" being "07" where the list has two digits; none where
// no line does.
[[nodiscard]] std::optional<std::string> lineFor(const std::vector<std::string>& lines,
                                                 const std::string& typed);

}  // namespace model
