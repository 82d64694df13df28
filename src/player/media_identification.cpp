#include "player/media_identification.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "model/numbers.h"
#include "platform/text.h"

namespace player {
namespace {

using platform::RandomFile;

// Numbers and texts at positions that count from 1; behind the end of the file everything reads 0.
class Bytes {
 public:
  explicit Bytes(RandomFile& file) : file_(file) {}

  [[nodiscard]] unsigned char at(std::uint64_t position) {
    const std::uint64_t offset = position - 1;
    if (offset < start_ || offset >= start_ + buffer_.size()) {
      start_ = offset / block * block;
      buffer_.fill(0);
      file_.readAt(start_, buffer_);
    }
    return static_cast<unsigned char>(buffer_[offset - start_]);
  }
  [[nodiscard]] int number16(std::uint64_t position) {
    return static_cast<std::int16_t>(at(position) | at(position + 1) << 8);
  }
  [[nodiscard]] std::string text(std::uint64_t position, std::size_t size) {
    std::string text(size, '\0');
    file_.readAt(position - 1, text);
    return text;
  }

 private:
  static constexpr std::size_t block = 4096;
  RandomFile& file_;
  std::array<char, block> buffer_{};
  std::uint64_t start_ = ~std::uint64_t{0} - block;  // nothing is read yet
};

struct Found {
  std::string codeFormat;
  int width = 1;
  int height = 1;
};

template <std::size_t N>
bool isOneOf(const std::string& word, const std::array<std::string_view, N>& words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

std::string extensionOf(const std::string& path) {
  return platform::lowerAscii(std::string_view(path).substr(path.rfind('.') + 1));
}

Found readAvi(Bytes& bytes) {
  return {bytes.text(189, 4) + " ", bytes.number16(65), bytes.number16(69)};
}

// The sequence header: a mark, then twelve bits each of width and height.
Found scanMpeg(Bytes& bytes) {
  constexpr std::size_t bound = 30000;  // positions at which the mark may begin
  constexpr std::string_view mark("\x00\x00\x01\xB3", 4);
  const std::string start = bytes.text(1, bound + mark.size() - 1);
  const std::size_t at = start.find(mark);
  if (at == std::string::npos) return {"MPEG ", 0xFFF, 0xFFF};
  const std::uint64_t size = at + 1 + mark.size();
  const int high = bytes.at(size);
  const int middle = bytes.at(size + 1);
  return {"MPEG ", high << 4 | middle >> 4, (middle & 0xF) << 8 | bytes.at(size + 2)};
}

// The header names the codec ("WMV", "MP4" and the like) twelve bytes behind the picture's size. A match
// whose size does not have the shape of a film is coincidence.
Found scanAsf(Bytes& bytes, std::uint64_t fileSize) {
  constexpr std::uint64_t sizeBefore = 12;
  constexpr std::uint64_t longest = 16U << 20;  // a header tells its own length, which may be nonsense
  std::uint64_t header = 0;
  for (std::uint64_t i = 4; i > 0; --i) header = header << 8 | bytes.at(16 + i);
  const auto is = [&](std::uint64_t position, unsigned char one, unsigned char other) {
    return bytes.at(position) == one || bytes.at(position) == other;
  };
  const std::uint64_t last = std::min({header, fileSize, longest});
  for (std::uint64_t position = sizeBefore + 1; position <= last; ++position) {
    if (!is(position, 'M', 'W') || !is(position + 1, 'M', 'P') || !is(position + 2, '4', 'V')) continue;
    const int width = bytes.number16(position - sizeBefore);
    const int height = bytes.number16(position - 8);
    const double ratio = height == 0 ? 0 : static_cast<double>(width) / height;
    if (ratio >= 1.2 && ratio <= 1.8) return {bytes.text(position, 5), width, height};
  }
  return {"", 0, 0};
}

Found inspect(RandomFile& file, const std::string& typeMedia) {
  static constexpr std::array<std::string_view, 10> sounds{"mp3", "mp2", "mp1", "wav", "mid",
                                                           "xmi", "rmi", "au",  "voc", "wma"};
  Bytes bytes(file);
  if (typeMedia == "avi") return readAvi(bytes);
  if (typeMedia == "mpg" || typeMedia == "mpe" || typeMedia == "mpeg") return scanMpeg(bytes);
  if (typeMedia == "asf" || typeMedia == "wmv") return scanAsf(bytes, file.size());
  if (typeMedia == "mov") return {"QTMOV"};
  if (isOneOf(typeMedia, sounds)) return {"AUDIO"};
  return {"?    "};
}

// The two last numbers of the device's answer.
void readSize(std::string answer, Found& found) {
  answer = platform::trim(answer.substr(0, answer.find('\0')));
  if (answer.size() <= 1) return;
  const std::size_t last = answer.rfind(' ');
  if (last == std::string::npos || last == 0) return;
  const std::size_t before = answer.rfind(' ', last - 1);
  const std::size_t start = before == std::string::npos ? 0 : before + 1;
  found.height = model::lenientInteger(answer.substr(last + 1));
  found.width = model::lenientInteger(answer.substr(start, last - start));
}

}  // namespace

bool ItIsAPic(const std::string& path) {
  static constexpr std::array<std::string_view, 10> pictures{"bmp", "jpe", "jpg", "jpeg", "dib",
                                                             "gif", "ico", "cur", "wmf",  "emf"};
  return isOneOf(extensionOf(path), pictures);
}

std::string typeParContenu(platform::FileSystem& files, const std::string& path) {
  struct Mark {
    std::string_view bytes;
    std::string_view type;
  };
  static constexpr std::array<Mark, 4> marks{
      {{"MThd", "mid"}, {"\x30\x26\xB2\x75", "wmv"}, {".RMF", "ram"}, {{"\x00\x00\x01\xBA", 4}, "mpg"}}};
  // A file with one of these extensions but without the mark of its type is none of them.
  static constexpr std::array<std::string_view, 7> films{"ram", "avi", "mpg", "mpe", "mpeg", "asf", "wmv"};
  const auto file = files.open(path, platform::OpenMode::Read);
  Bytes bytes(*file);
  const std::string start = bytes.text(1, 4);
  for (const Mark& mark : marks) {
    if (start == mark.bytes) return std::string(mark.type);
  }
  if (start == "RIFF") {
    const std::string kind = bytes.text(9, 4);
    return kind == "AVI " ? "avi" : kind == "WAVE" ? "wav" : "dat";
  }
  const std::string extension = extensionOf(path);
  return isOneOf(extension, films) ? "dat" : extension;
}

Identification identifierMedia(platform::FileSystem& files, const std::string& path,
                               const std::function<std::string()>& askDevice) {
  const std::string typeMedia = typeParContenu(files, path);
  Found found = inspect(*files.open(path, platform::OpenMode::Read), typeMedia);
  if (found.width < 2 && found.height < 2) readSize(askDevice(), found);
  const std::string code = found.codeFormat.substr(0, found.codeFormat.find('\0'));
  return {found.width, found.height,
          code + " [" + std::to_string(found.width) + "x" + std::to_string(found.height) + "]"};
}

}  // namespace player
