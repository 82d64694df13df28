#include "rehearsal/media_length.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/wav_form.h"

namespace rehearsal {
namespace {

using Milliseconds = std::chrono::milliseconds;

std::uint64_t big(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint64_t value = 0;
  for (std::size_t i = at; i < at + size && i < bytes.size(); ++i) {
    value = value << 8 | static_cast<unsigned char>(bytes[i]);
  }
  return value;
}

// The header of a frame of MPEG audio, as far as times depend on it.
struct Frame {
  unsigned rate = 0;     // samples a second
  unsigned samples = 0;  // that the frame holds
  unsigned bitrate = 0;  // bits a second
  unsigned bytes = 0;
  unsigned sideInformation = 0;  // bytes between the header and a count of all frames
};

constexpr unsigned columns = 16;
constexpr std::array<std::array<unsigned, columns>, 5> kilobits{{
    {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0},  // version 1, layer I
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},     // version 1, layer II
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0},      // version 1, layer III
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},     // version 2, layer I
    {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0},          // version 2, layers II, III
}};

std::optional<Frame> frameAt(std::string_view bytes, std::size_t at) {
  constexpr std::array<unsigned, 3> rates{44100, 48000, 32000};
  if (at + 4 > bytes.size()) return std::nullopt;
  const auto header = static_cast<unsigned>(big(bytes, at, 4));
  const unsigned version = header >> 19 & 3U;  // 3: 1, 2: 2, 0: 2.5
  const unsigned layer = 4 - (header >> 17 & 3U);
  const unsigned rate = header >> 10 & 3U;
  if (header >> 21 != 0x7FF || version == 1 || layer == 4 || rate == 3) return std::nullopt;
  const bool first = version == 3;
  const unsigned table = first ? layer - 1 : layer == 1 ? 3 : 4;
  Frame frame;
  frame.bitrate = kilobits[table][header >> 12 & 15U] * 1000;
  if (frame.bitrate == 0) return std::nullopt;
  frame.rate = rates[rate] / (first ? 1 : version == 2 ? 2 : 4);
  frame.samples = layer == 1 ? 384 : layer == 3 && !first ? 576 : 1152;
  const unsigned slot = layer == 1 ? 4 : 1;
  frame.bytes = (frame.samples / 8 / slot * frame.bitrate / frame.rate + (header >> 9 & 1U)) * slot;
  const bool mono = (header >> 6 & 3U) == 3;
  frame.sideInformation = first ? (mono ? 17 : 32) : (mono ? 9 : 17);
  return frame;
}

// How many frames there are, where the first one says so.
std::optional<std::uint64_t> countedFrames(std::string_view bytes, const Frame& frame) {
  const std::size_t xing = 4 + frame.sideInformation;
  const std::string_view mark = bytes.substr(std::min(xing, bytes.size()), 4);
  if ((mark == "Xing" || mark == "Info") && (big(bytes, xing + 4, 4) & 1U) != 0) {
    return big(bytes, xing + 8, 4);
  }
  constexpr std::size_t vbri = 4 + 32;
  if (bytes.substr(std::min(vbri, bytes.size()), 4) == "VBRI") return big(bytes, vbri + 14, 4);
  return std::nullopt;
}

// Where the sound begins, behind a tag at the start.
std::uint64_t startOfSound(platform::RandomFile& file) {
  std::array<char, 10> head{};
  const std::string_view tag(head.data(), file.readAt(0, head));
  if (!tag.starts_with("ID3") || tag.size() < head.size()) return 0;
  std::uint64_t size = 0;
  for (std::size_t i = 6; i < 10; ++i) size = size << 7 | (static_cast<unsigned char>(tag[i]) & 0x7FU);
  const bool footer = (static_cast<unsigned char>(tag[5]) & 0x10U) != 0;
  return size + (footer ? 20 : 10);
}

std::uint64_t endOfSound(platform::RandomFile& file) {
  constexpr std::uint64_t tagSize = 128;
  const std::uint64_t size = file.size();
  std::array<char, 3> mark{};
  const bool tagged = size > tagSize && file.readAt(size - tagSize, mark) == mark.size() &&
                      std::string_view(mark.data(), mark.size()) == "TAG";
  return tagged ? size - tagSize : size;
}

std::optional<Milliseconds> mpegLength(platform::RandomFile& file) {
  constexpr std::size_t reach = 64 * 1024;  // how far behind the tag the first frame may lie
  const std::uint64_t start = startOfSound(file);
  const std::uint64_t end = endOfSound(file);
  std::vector<char> buffer(reach);
  const std::string_view bytes(buffer.data(), file.readAt(start, buffer));
  for (std::size_t at = 0; at + 4 <= bytes.size(); ++at) {
    const std::optional<Frame> frame = frameAt(bytes, at);
    if (!frame) continue;
    // Other data can begin like a frame by chance, so another frame or the end must follow.
    const std::size_t next = at + frame->bytes;
    if (start + next != end && !frameAt(bytes, next)) continue;
    const std::uint64_t sound = end - start - at;
    if (const auto count = countedFrames(bytes.substr(at), *frame)) {
      return Milliseconds(*count * frame->samples * 1000 / frame->rate);
    }
    return Milliseconds(sound * 8 * 1000 / frame->bitrate);
  }
  return std::nullopt;
}

}  // namespace

std::optional<Milliseconds> mediaLength(platform::RandomFile& file) {
  const std::optional<platform::WavForm> wav = platform::wavForm(file);
  return wav ? wav->length() : mpegLength(file);
}

}  // namespace rehearsal
