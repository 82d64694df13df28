// Time as a calendar value: a double-precision number of days, made only by converting texts such as
// "00:00:01", and brought back to whole seconds by formatting and converting again. It cannot express 24
// hours.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/fault.h"

namespace model {

using TimeValue = double;  // days

inline constexpr int secondsADay = 86400;

// "H:M" or "H:M:S" under 24 hours, blanks around it ignored.
[[nodiscard]] std::optional<TimeValue> parseTime(std::string_view text);
// The same; a platform::Fault where the text is no time.
[[nodiscard]] TimeValue timeValue(std::string_view text);
// "hh:nn:ss", rounded to the whole second; whole days are dropped and a negative value shows its distance
// from midnight.
[[nodiscard]] std::string formatTime(TimeValue days);
// Whole seconds of a time text, or none; quicker than parseTime for sums over many rows.
[[nodiscard]] std::optional<int> parseSeconds(std::string_view text);
// What digits typed one after another come to as a duration filled from its right end: "530" is 00:05:30, and
// "90", more seconds than a minute has, 00:01:30. None where that is no duration of less than a day.
[[nodiscard]] std::optional<std::string> durationOfDigits(std::string_view digits);
// "hh:nn:ss" of a number of seconds, whole days dropped.
[[nodiscard]] std::string formatSeconds(long long seconds);

}  // namespace model
