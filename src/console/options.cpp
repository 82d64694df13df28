#include "console/options.h"

#include <array>
#include <charconv>
#include <functional>
#include <string_view>
#include <utility>

namespace console {
namespace {

using namespace std::chrono_literals;

[[noreturn]] void refuse(std::string_view option, const std::string& value) {
  throw UsageError(std::string(option) + " cannot be \"" + value + "\"");
}

template <class Value, std::size_t Size>
Value oneOf(std::string_view option, const std::string& word,
            const std::array<std::pair<const char*, Value>, Size>& table) {
  for (const auto& [name, value] : table) {
    if (word == name) return value;
  }
  refuse(option, word);
}

// Takes a number of exactly that many digits and the mark behind it off the front.
int cutNumber(std::string_view& text, std::size_t digits, char mark, const std::string& whole) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + std::min(digits, text.size()), value);
  const bool complete = error == std::errc{} && end == text.data() + digits && value >= 0;
  const bool marked = mark == 0 ? text.size() == digits : text.size() > digits && text[digits] == mark;
  if (!complete || !marked) refuse("--now", whole);
  text.remove_prefix(mark == 0 ? digits : digits + 1);
  return value;
}

platform::LocalTime parseNow(const std::string& whole) {
  const std::string padded = whole.find('.') == std::string::npos ? whole + ".000" : whole;
  std::string_view text = padded;
  const int year = cutNumber(text, 4, '-', whole);
  const int month = cutNumber(text, 2, '-', whole);
  const int day = cutNumber(text, 2, ' ', whole);
  const int hour = cutNumber(text, 2, ':', whole);
  const int minute = cutNumber(text, 2, ':', whole);
  const int second = cutNumber(text, 2, '.', whole);
  const int milliseconds = cutNumber(text, 3, 0, whole);
  const std::chrono::year_month_day date{std::chrono::year{year},
                                         std::chrono::month{static_cast<unsigned>(month)},
                                         std::chrono::day{static_cast<unsigned>(day)}};
  if (!date.ok() || hour > 23 || minute > 59 || second > 59) refuse("--now", whole);
  return std::chrono::local_days{date} + std::chrono::hours{hour} + std::chrono::minutes{minute} +
         std::chrono::seconds{second} + std::chrono::milliseconds{milliseconds};
}

std::optional<int> parseVolume(const std::string& word) {
  if (word == "none") return std::nullopt;
  int percent = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), percent);
  if (error != std::errc{} || end != word.data() + word.size() || percent < 0 || percent > 100) {
    refuse("--volume", word);
  }
  return percent;
}

double parseSpeed(const std::string& word) {
  double speed = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), speed);
  if (error != std::errc{} || end != word.data() + word.size() || !(speed >= 0.1 && speed <= 1000)) {
    refuse("--speed", word);
  }
  return speed;
}

struct KnownOption {
  const char* name;
  void (*apply)(Options& options, const std::string& value);
};

constexpr std::array<KnownOption, 9> table{{
    {"--folder", [](Options& o, const std::string& value) { o.folder = value; }},
    {"--clock",
     [](Options& o, const std::string& value) {
       o.realClock =
           oneOf<bool, 2>("--clock", value, {{std::pair{"simulated", false}, std::pair{"real", true}}});
     }},
    {"--now", [](Options& o, const std::string& value) { o.start = parseNow(value); }},
    {"--sound",
     [](Options& o, const std::string& value) {
       o.sound = oneOf<rehearsal::SoundMode, 3>("--sound", value,
                                                {{std::pair{"none", rehearsal::SoundMode::None},
                                                  std::pair{"instant", rehearsal::SoundMode::Instant},
                                                  std::pair{"timed", rehearsal::SoundMode::Timed}}});
     }},
    {"--volume", [](Options& o, const std::string& value) { o.volume = parseVolume(value); }},
    {"--ride", [](Options& o, const std::string& value) { o.ride = value; }},
    {"--timeline", [](Options& o, const std::string& value) { o.timeline = value; }},
    {"--record-voice", [](Options& o, const std::string& value) { o.recordVoice = value; }},
    {"--speed", [](Options& o, const std::string& value) { o.speed = parseSpeed(value); }},
}};

const KnownOption& optionNamed(const std::string& name) {
  for (const KnownOption& option : table) {
    if (name == option.name) return option;
  }
  throw UsageError("no option " + name);
}

}  // namespace

Options parseOptions(const std::vector<std::string>& words) {
  Options options;
  options.start = parseNow("2026-01-01 12:00:00.000");
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--help" || words[i] == "-h") {
      options.help = true;
    } else if (words[i] == "--every-tick") {
      options.everyTick = true;
    } else if (words[i].starts_with("--")) {
      const std::size_t equals = words[i].find('=');
      const KnownOption& option = optionNamed(words[i].substr(0, equals));
      if (equals == std::string::npos && i + 1 == words.size()) throw UsageError(words[i] + " needs a value");
      const std::string value = equals == std::string::npos ? words[++i] : words[i].substr(equals + 1);
      if (value.empty()) refuse(option.name, value);
      option.apply(options, value);
    } else if (options.script.empty() && !words[i].empty()) {
      options.script = words[i];
    } else {
      throw UsageError("too many words: \"" + words[i] + "\"");
    }
  }
  return options;
}

std::string usage() {
  return "usage: ventoria-console [--folder DIR] [--clock simulated|real] [--now \"2026-01-31 12:00:00.000\"]\n"
         "                        [--sound none|instant|timed] [--volume N|none] [--every-tick] [SCRIPT]\n"
         "       ventoria-console --ride FILE [--speed N]\n"
         "       ventoria-console --timeline FILE [--folder DIR]\n"
         "       ventoria-console --record-voice DIR\n";
}

}  // namespace console
