#include "player/file_information.h"

#include <array>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace player {
namespace {

namespace fs = std::filesystem;

std::string behindLast(const std::string& text, char mark) {
  return text.substr(text.rfind(mark) + 1);
}

// Day and time on the wall.
std::string texteDate(fs::file_time_type when) {
  using namespace std::chrono;
  const auto moment = time_point_cast<system_clock::duration>(file_clock::to_sys(when));
  const std::time_t seconds = system_clock::to_time_t(moment);
  const std::tm* local = std::localtime(&seconds);
  std::array<char, 32> text{};
  return local == nullptr
             ? std::string()
             : std::string(text.data(), std::strftime(text.data(), text.size(), "%d/%m/%Y %H:%M:%S", local));
}

std::uint32_t attributesOf(const fs::path& path, const fs::file_status& status) {
  std::uint32_t bits = 0;
  if (fs::is_directory(status)) bits |= Folder;
  if (path.filename().string().starts_with('.')) bits |= Hidden;
  if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) bits |= ReadOnly;
  return bits == 0 ? Normal : bits;
}

}  // namespace

std::string texteAttributs(std::uint32_t bits) {
  struct Letter {
    std::uint32_t bit;
    const char* text;
  };
  static constexpr std::array<Letter, 13> letters{{{32768, "L"},
                                                   {16384, "E"},
                                                   {8192, ""},
                                                   {4096, "O"},
                                                   {2048, "C"},
                                                   {1024, "R-P"},
                                                   {512, "S-F"},
                                                   {256, "T"},
                                                   {Archive, "A"},
                                                   {Folder, "D"},
                                                   {4, "S"},
                                                   {Hidden, "H"},
                                                   {ReadOnly, "R"}}};
  if (bits == Normal) return "N";
  if (bits == 0) return "None";
  std::string text;
  for (const Letter& letter : letters) {
    if ((bits & letter.bit) == 0) continue;
    text += letter.text;
    bits &= ~letter.bit;
  }
  return bits == 0 ? text : "Erreur d'attribut";
}

std::string texteTaille(std::uint64_t bytes) {
  if (bytes == 0) return {};  // "#" writes no zero
  std::string text = std::to_string(bytes);
  for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

FileInformation informationFichier(const std::string& path, const std::string& version) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return {};
  FileInformation information;
  information.fileName = path;
  information.name = behindLast(path, '/');
  information.extension = behindLast(path, '.');
  information.attributes = texteAttributs(attributesOf(path, status));
  const std::uintmax_t size = fs::file_size(path, error);
  if (!error) information.size = texteTaille(size);
  const fs::file_time_type written = fs::last_write_time(path, error);
  if (!error) information.writeTime = texteDate(written);
  information.FileVersion = version;
  information.found = !version.empty();
  return information;
}

std::string programFile() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).string();
}

}  // namespace player
