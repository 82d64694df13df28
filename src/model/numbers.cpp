#include "model/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/fault.h"
#include "platform/text.h"

namespace model {

double lenientNumber(std::string_view text) {
  std::string digits;
  bool point = false;
  for (const char c : text) {
    if (c == ' ') continue;
    const bool sign = digits.empty() && (c == '-' || c == '+');
    const bool decimal = c == '.' && !point;
    if (!sign && !decimal && (c < '0' || c > '9')) break;
    point = point || decimal;
    if (c != '+') digits += c;
  }
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

int lenientInteger(std::string_view text) {
  const double value = lenientNumber(text);
  constexpr double most = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(value, -most, most));
}

double strictNumber(std::string_view text) {
  const std::string trimmed = platform::trim(text);
  std::string digits = trimmed;
  std::replace(digits.begin(), digits.end(), ',', '.');
  if (!digits.empty() && digits.front() == '+') digits.erase(0, 1);
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(value)) {
    throw platform::Fault("Le texte « " + trimmed + " » n'est pas un nombre.");
  }
  return value;
}

std::string plainNumber(double value) {
  if (value == 0 || !std::isfinite(value)) return "0";
  // To fifteen digits, because sums of decimals are not exact beyond them; then the shortest text of that
  // number.
  std::array<char, 400> text{};
  constexpr int digitsBehindTheFirst = 14;
  const char* end = std::to_chars(text.data(), text.data() + text.size(), value,
                                  std::chars_format::scientific, digitsBehindTheFirst)
                        .ptr;
  std::from_chars(text.data(), end, value);
  end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  return {static_cast<const char*>(text.data()), end};
}

std::string formatBpm(double value) {
  const double rounded = std::round(value);
  return rounded == 0 ? std::string() : plainNumber(rounded);
}

std::optional<int> lineBeginningWith(const std::vector<std::string>& lines, std::string_view typed) {
  const std::string wanted = platform::folded(typed);
  const auto found = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
    return platform::folded(line).starts_with(wanted);
  });
  if (found == lines.end()) return std::nullopt;
  return static_cast<int>(found - lines.begin());
}

std::optional<std::string> lineFor(const std::vector<std::string>& lines, const std::string& typed) {
  for (const std::string& line : lines) {
    if (line == typed || (typed.size() == 1 && line == "0" + typed)) return line;
  }
  return std::nullopt;
}

}  // namespace model
