// Reading and writing numbers as the forms and record files hold them. Nothing depends on the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace model {

// Lenient: skips blanks and reads the leading digits (with a sign, a decimal point); 0 where there are none.
[[nodiscard]] double lenientNumber(std::string_view text);
// The same, cut to a whole number and kept within an int.
[[nodiscard]] int lenientInteger(std::string_view text);
// Strict: the whole text, blanks at its ends aside, must be a number; a platform::Fault otherwise.
[[nodiscard]] double strictNumber(std::string_view text);
// The shortest decimal text of the value rounded to fifteen digits: no exponent, and no decimals on a whole
// number.
[[nodiscard]] std::string plainNumber(double value);
// The format "###" of heart rates: rounded to a whole number, halves away from zero; empty for 0.
[[nodiscard]] std::string formatBpm(double value);
// The first line that begins with what was typed, letters' case and accents aside; none where no line does.
[[nodiscard]] std::optional<int> lineBeginningWith(const std::vector<std::string>& lines,
                                                   std::string_view typed);
// The line of a list that equals what was typed; a typed "7" also finds "07". None where there is no such
// line.
[[nodiscard]] std::optional<std::string> lineFor(const std::vector<std::string>& lines,
                                                 const std::string& typed);

}  // namespace model
