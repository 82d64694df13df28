#include "model/record.h"

#include <algorithm>

#include "model/windows1252.h"
#include "platform/each_on_its_own.h"
#include "platform/whole_file.h"

namespace model {

std::string Record::get(const Field& field) const {
  return fromWindows1252(std::string_view(bytes_).substr(field.offset, field.width));
}

std::string Record::trimmed(const Field& field) const {
  const auto padding = [](char c) { return c == ' ' || c == '\0'; };
  std::string_view bytes = std::string_view(bytes_).substr(field.offset, field.width);
  while (!bytes.empty() && padding(bytes.front())) bytes.remove_prefix(1);
  while (!bytes.empty() && padding(bytes.back())) bytes.remove_suffix(1);
  return fromWindows1252(bytes);
}

void Record::set(const Field& field, std::string_view text) {
  std::string bytes = toWindows1252(text);
  bytes.resize(field.width, ' ');
  bytes_.replace(field.offset, field.width, bytes);
}

void Record::blank(std::span<const Field> fields) {
  for (const Field& field : fields) bytes_.replace(field.offset, field.width, field.width, ' ');
}

void Record::read(platform::RandomFile& file, std::uint64_t number) {
  std::fill(bytes_.begin(), bytes_.end(), '\0');
  file.readAt((number - 1) * bytes_.size(), bytes_);
}

void Record::write(platform::RandomFile& file, std::uint64_t number) const {
  file.writeAt((number - 1) * bytes_.size(), bytes_);
}

void Record::store(platform::FileSystem& files, const std::string& path) const {
  std::string old(bytes_.size(), '\0');
  if (files.exists(path)) {
    const auto file = files.open(path, platform::OpenMode::ReadWriteCreate);
    if (file->readAt(0, old) == old.size()) return overwrite(*file, old);
  }
  platform::WholeFile file(files, path, platform::WholeFile::Start::Empty);
  write(file, 1);
  file.commit();
}

// A write can be cut short, and the part that was written is then the only one that can be written back.
void Record::overwrite(platform::RandomFile& file, const std::string& old) const {
  try {
    write(file, 1);
  } catch (const platform::FileFault&) {
    platform::eachOnItsOwn([&] { file.writeAt(0, old); });
    throw;
  }
  file.sync();
}

}  // namespace model
