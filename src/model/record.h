// Fixed-length records of text fields, the one codec of all the record files. A field is Windows-1252 text,
// left-aligned and padded with blanks; a longer value is cut on the right.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace model {

struct Field {
  std::string_view name;
  std::uint16_t offset;  // bytes
  std::uint16_t width;   // bytes, which are characters
};

// One record's bytes. A fresh one, or one past a file's end, holds character codes 0 throughout.
class Record {
 public:
  explicit Record(std::size_t width) : bytes_(width, '\0') {}

  // The whole field with its blanks, as UTF-8.
  [[nodiscard]] std::string get(const Field& field) const;
  // The field without blanks and character codes 0 at its ends.
  [[nodiscard]] std::string trimmed(const Field& field) const;
  void set(const Field& field, std::string_view text);
  // Every field of the table to blanks.
  void blank(std::span<const Field> fields);

  // Record `number`, from 1; what the file lacks stays character code 0.
  void read(platform::RandomFile& file, std::uint64_t number);
  void write(platform::RandomFile& file, std::uint64_t number) const;
  // As the first record of a file: over the one there by one write that reaches the disk; a file that has no
  // whole one is replaced, because half a record would be read as one.
  void store(platform::FileSystem& files, const std::string& path) const;

 private:
  void overwrite(platform::RandomFile& file, const std::string& old) const;

  std::string bytes_;
};

}  // namespace model
