#include "platform/text.h"

#include <algorithm>

namespace platform {

using namespace std::string_view_literals;

namespace {

// Where the character that begins at `at` ends: behind a whole UTF-8 sequence, or behind one byte that is not
// UTF-8.
std::size_t nextCharacter(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  std::size_t size = 1;
  if (lead >= 0xC2 && lead <= 0xDF) size = 2;
  if (lead >= 0xE0 && lead <= 0xEF) size = 3;
  if (lead >= 0xF0 && lead <= 0xF4) size = 4;
  if (at + size > text.size()) return at + 1;
  for (std::size_t i = 1; i < size; ++i) {
    if ((static_cast<unsigned char>(text[at + i]) & 0xC0U) != 0x80U) return at + 1;
  }
  return at + size;
}

std::size_t offsetOf(std::string_view text, std::size_t characters) {
  std::size_t at = 0;
  while (characters > 0 && at < text.size()) {
    at = nextCharacter(text, at);
    --characters;
  }
  return at;
}

bool matches(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() != '*') {
    return !name.empty() && name.front() == pattern.front() && matches(name.substr(1), pattern.substr(1));
  }
  const std::string_view rest = pattern.substr(1);
  for (std::size_t at = 0; at <= name.size(); ++at) {
    if (matches(name.substr(at), rest)) return true;
  }
  return false;
}

}  // namespace

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at = nextCharacter(text, at)) ++count;
  return count;
}

std::string left(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, offsetOf(text, count)));
}

std::string right(std::string_view text, std::size_t count) {
  const std::size_t total = length(text);
  return std::string(text.substr(offsetOf(text, total > count ? total - count : 0)));
}

std::string mid(std::string_view text, std::size_t from, std::size_t count) {
  const std::string_view rest = text.substr(offsetOf(text, from - 1));
  return count == std::string_view::npos ? std::string(rest) : left(rest, count);
}

std::string trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t at = text.find(separator);
    parts.emplace_back(text.substr(0, at));
    if (at == std::string_view::npos) return parts;
    text.remove_prefix(at + 1);
  }
}

std::string zeroPadded(long long number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::string lowerAscii(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return lower;
}

std::string folded(std::string_view text) {
  // By the second byte of "à" to "ÿ", from 0xA0 on; capitals lie 0x20 before.
  constexpr std::string_view plain = "aaaaaa\0ceeeeiiii\0nooooo\0ouuuuy\0y"sv;
  std::string all;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto next = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : 0);
    const bool accented = text[at] == '\xC3' && next >= 0x80 && next <= 0xBF;
    const char bare = accented ? plain[(next | 0x20U) - 0xA0U] : '\0';
    all += bare != '\0' ? bare : text[at];
    if (bare != '\0') ++at;
  }
  return lowerAscii(all);
}

bool matchesPatterns(std::string_view name, std::string_view patterns) {
  const std::string lower = lowerAscii(name);
  const std::vector<std::string> list = split(lowerAscii(patterns), ';');
  return std::any_of(list.begin(), list.end(),
                     [&](const std::string& pattern) { return matches(lower, pattern); });
}

}  // namespace platform
