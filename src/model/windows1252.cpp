#include "model/windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace model {
namespace {

// What the bytes 0x80 to 0x9F stand for; 0 where the code page leaves them open.
constexpr std::array<std::uint16_t, 32> upper{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                              0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void appendUtf8(std::string& text, std::uint32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0U | (code >> 6U));
    text += static_cast<char>(0x80U | (code & 0x3FU));
  } else {
    text += static_cast<char>(0xE0U | (code >> 12U));
    text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    text += static_cast<char>(0x80U | (code & 0x3FU));
  }
}

// Cuts the first code point off `text`; a byte that is not UTF-8 counts as 0xFFFD.
std::uint32_t cutCodePoint(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t size = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
  std::uint32_t code = size == 1 ? lead : size == 2 ? lead & 0x1FU : size == 3 ? lead & 0x0FU : lead & 0x07U;
  bool whole = size > 0 && size <= text.size();
  for (std::size_t i = 1; whole && i < size; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    whole = (byte & 0xC0U) == 0x80U;
    code = (code << 6U) | (byte & 0x3FU);
  }
  text.remove_prefix(whole ? size : 1);
  return whole ? code : 0xFFFD;
}

char byteOf(std::uint32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto* found = std::find(upper.begin(), upper.end(), code);
  if (found != upper.end() && code != 0) return static_cast<char>(0x80 + (found - upper.begin()));
  if (code >= 0x80 && code <= 0x9F && upper.at(code - 0x80) == 0) return static_cast<char>(code);
  return '?';
}

}  // namespace

std::string toWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) bytes += byteOf(cutCodePoint(utf8));
  return bytes;
}

std::string fromWindows1252(std::string_view bytes) {
  const auto ascii = std::find_if(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) != 0; });
  std::string text(bytes.begin(), ascii);
  for (const char c : bytes.substr(text.size())) {
    const auto byte = static_cast<unsigned char>(c);
    const bool inUpper = byte >= 0x80 && byte <= 0x9F && upper.at(byte - 0x80U) != 0;
    appendUtf8(text, inUpper ? upper.at(byte - 0x80U) : byte);
  }
  return text;
}

}  // namespace model
