// A text as one field of one line: line breaks, tabs and backslashes are written "\n", "\t" and "\\".
#pragma once

#include <string>
#include <string_view>

namespace rehearsal {

[[nodiscard]] std::string escaped(std::string_view text);
// A backslash before any other character stands for itself.
[[nodiscard]] std::string unescaped(std::string_view text);

}  // namespace rehearsal
