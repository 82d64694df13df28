// UTF-8 text cut and counted by characters, never by bytes. A byte that is not UTF-8 counts as one character.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

[[nodiscard]] std::size_t length(std::string_view text);
// The first `count` characters, or all of them where there are fewer.
[[nodiscard]] std::string left(std::string_view text, std::size_t count);
// The last `count` characters.
[[nodiscard]] std::string right(std::string_view text, std::size_t count);
// `count` characters from the one numbered `from` (1 is the first); to the end without `count`.
[[nodiscard]] std::string mid(std::string_view text, std::size_t from,
                              std::size_t count = std::string_view::npos);
// Without blanks (0x20 only) at both ends.
[[nodiscard]] std::string trim(std::string_view text);
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);
// A number that is not negative, with zeros in front up to that many digits.
[[nodiscard]] std::string zeroPadded(long long number, std::size_t digits);
// ASCII letters to lower case; everything else as it stands.
[[nodiscard]] std::string lowerAscii(std::string_view text);
// For comparing what was typed with French words: letters to lower case and without their accents.
[[nodiscard]] std::string folded(std::string_view text);
// Whether a file name fits a list of patterns such as "*.mp3;*.wma", letters' case aside.
[[nodiscard]] bool matchesPatterns(std::string_view name, std::string_view patterns);

}  // namespace platform
