#include "model/record.h"

#include <algorithm>

#include "model/windows1252.h"

namespace model {

std::string Record::get(const Field& field) const {
  return fromWindows1252(std::string_view(bytes_).substr(field.offset, field.width));
}

std::string Record::trimmed(const Field& field) const {
  constexpr std::string_view padding(" \0", 2);
  std::string_view bytes = std::string_view(bytes_).substr(field.offset, field.width);
  const std::size_t first = bytes.find_first_not_of(padding);
  if (first == std::string_view::npos) return {};
  return fromWindows1252(bytes.substr(first, bytes.find_last_not_of(padding) - first + 1));
}

void Record::set(const Field& field, std::string_view text) {
  std::string bytes = toWindows1252(text);
  bytes.resize(field.width, ' ');
  bytes_.replace(field.offset, field.width, bytes);
}

void Record::blank(std::span<const Field> fields) {
  for (const Field& field : fields) set(field, "");
}

void Record::read(platform::RandomFile& file, std::uint64_t number) {
  std::fill(bytes_.begin(), bytes_.end(), '\0');
  file.readAt((number - 1) * bytes_.size(), bytes_);
}

void Record::write(platform::RandomFile& file, std::uint64_t number) const {
  file.writeAt((number - 1) * bytes_.size(), bytes_);
}

}  // namespace model
