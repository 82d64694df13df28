// Any bytes under any of the player's extensions: nothing crashes, nothing is read without end.
#include <array>
#include <cstdlib>

#include "player/media_identification.h"
#include "rehearsal/media_length.h"
#include "rehearsal/memory_file_system.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static constexpr std::array<const char*, 6> names{"a.mp3", "a.avi", "a.mpg", "a.wmv", "a.wav", "a"};
  // The first byte chooses the name and a mark to begin with, so that chance reaches every scan.
  static const std::array<std::string, 5> marks{"", std::string("\0\0\1\xBA", 4), "\x30\x26\xB2\x75",
                                                "RIFF....AVI ", "RIFF....WAVEfmt "};
  const std::size_t choice = size == 0 ? 0 : data[0];
  rehearsal::MemoryFileSystem disk;
  const std::string name = names[choice % names.size()];
  std::string bytes(data, data + size);
  disk.put(name, marks[choice / names.size() % marks.size()] + bytes);
  const auto found = player::identifierMedia(disk, name, [&] { return bytes; });
  if (found.infoMedia.find('\0') != std::string::npos || !found.infoMedia.ends_with("]")) std::abort();
  const auto length = rehearsal::mediaLength(*disk.open(name, platform::OpenMode::Read));
  if (length && length->count() < 0) std::abort();
  return 0;
}
