// The record files' text: one byte a character, Windows-1252. The program's text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace model {

// A character that Windows-1252 lacks is written as '?'.
[[nodiscard]] std::string toWindows1252(std::string_view utf8);
// The five bytes that the code page leaves open read as the control characters of the same number.
[[nodiscard]] std::string fromWindows1252(std::string_view bytes);

}  // namespace model
