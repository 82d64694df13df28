#include "model/time_value.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "platform/text.h"

namespace model {
namespace {

// Cuts a number of one or two digits off the front; -1 where there is none.
int cutTwoDigits(std::string_view& text) {
  int value = -1;
  for (int digits = 0; digits < 2 && !text.empty() && text.front() >= '0' && text.front() <= '9'; ++digits) {
    value = (value < 0 ? 0 : value * 10) + (text.front() - '0');
    text.remove_prefix(1);
  }
  return value;
}

}  // namespace

std::optional<int> parseSeconds(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  std::array<int, 3> parts{0, 0, 0};
  constexpr std::array<int, 3> limits{24, 60, 60};
  std::size_t count = 0;
  for (;;) {
    const int part = cutTwoDigits(text);
    if (part < 0 || part >= limits.at(count)) return std::nullopt;
    parts.at(count++) = part;
    if (text.empty()) break;
    if (text.front() != ':' || count == parts.size()) return std::nullopt;
    text.remove_prefix(1);
  }
  if (count < 2) return std::nullopt;
  return parts[0] * 3600 + parts[1] * 60 + parts[2];
}

std::optional<TimeValue> parseTime(std::string_view text) {
  const std::optional<int> seconds = parseSeconds(text);
  if (!seconds) return std::nullopt;
  return static_cast<double>(*seconds) / secondsADay;
}

TimeValue timeValue(std::string_view text) {
  const std::optional<TimeValue> value = parseTime(text);
  if (!value) throw platform::Fault("Le texte « " + std::string(text) + " » n'est pas une durée (H:M:S).");
  return *value;
}

std::string formatTime(TimeValue days) {
  const double fraction = std::fabs(std::fmod(days, 1.0));
  // A little is added, so that half a second is rounded up even where the division came out slightly too low.
  return formatSeconds(std::llround(fraction * secondsADay + 1e-6));
}

std::string formatSeconds(long long seconds) {
  const int inDay = static_cast<int>(seconds % secondsADay);
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", inDay / 3600, inDay / 60 % 60, inDay % 60);
  return text.data();
}

std::optional<std::string> durationOfDigits(std::string_view digits) {
  constexpr std::size_t most = 6;
  if (digits.empty() || digits.size() > most) return std::nullopt;
  int number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  const int seconds = number / 10000 * 3600 + number / 100 % 100 * 60 + number % 100;
  if (seconds >= secondsADay) return std::nullopt;
  return formatSeconds(seconds);
}

}  // namespace model
