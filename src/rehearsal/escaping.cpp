#include "rehearsal/escaping.h"

#include <array>
#include <utility>

namespace rehearsal {
namespace {

constexpr std::array<std::pair<char, char>, 3> escapes{{{'\n', 'n'}, {'\t', 't'}, {'\\', '\\'}}};

}  // namespace

std::string escaped(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (const char c : text) {
    char letter = 0;
    for (const auto& [plain, written] : escapes) {
      if (c == plain) letter = written;
    }
    if (letter != 0) line += '\\';
    line += letter != 0 ? letter : c;
  }
  return line;
}

std::string unescaped(std::string_view text) {
  std::string plainText;
  plainText.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    char c = text[at];
    if (c == '\\' && at + 1 < text.size()) {
      for (const auto& [plain, written] : escapes) {
        if (text[at + 1] != written) continue;
        c = plain;
        ++at;
        break;
      }
    }
    plainText += c;
  }
  return plainText;
}

}  // namespace rehearsal
