#include "platform/wav_form.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace platform {
namespace {

// A recording in memory, read as a file is.
class MemoryFile final : public RandomFile {
 public:
  explicit MemoryFile(std::span<const unsigned char> bytes) : bytes_(bytes) {}
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
    if (offset >= bytes_.size()) return 0;
    const auto rest = bytes_.subspan(static_cast<std::size_t>(offset));
    const std::size_t count = std::min(into.size(), rest.size());
    for (std::size_t i = 0; i < count; ++i) into[i] = static_cast<char>(rest[i]);
    return count;
  }
  void writeAt(std::uint64_t, std::span<const char>) override {}
  void sync() override {}
  [[nodiscard]] std::uint64_t size() const override { return bytes_.size(); }

 private:
  std::span<const unsigned char> bytes_;
};

// A file whose beginning, where the headers mostly lie, is read at once.
class HeadFirst final : public RandomFile {
 public:
  explicit HeadFirst(RandomFile& file) : file_(file), read_(file.readAt(0, head_)) {}
  std::size_t readAt(std::uint64_t offset, std::span<char> into) override {
    if (offset + into.size() > read_) return file_.readAt(offset, into);
    std::copy_n(head_.begin() + static_cast<std::ptrdiff_t>(offset), into.size(), into.begin());
    return into.size();
  }
  void writeAt(std::uint64_t, std::span<const char>) override {}
  void sync() override {}
  [[nodiscard]] std::uint64_t size() const override { return file_.size(); }

 private:
  RandomFile& file_;
  std::array<char, 512> head_{};
  std::size_t read_;
};

std::uint32_t little(RandomFile& file, std::uint64_t at, std::size_t size) {
  std::array<char, 4> bytes{};
  file.readAt(at, std::span(bytes).first(size));
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) {
    value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
  }
  return value;
}

// Of four printable characters; what bears another one is where players give a damaged file up.
bool isMark(RandomFile& file, std::uint64_t at) {
  std::array<char, 4> bytes{};
  return file.readAt(at, bytes) == bytes.size() &&
         std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

bool reads(RandomFile& file, std::uint64_t at, std::string_view mark) {
  std::array<char, 4> bytes{};
  return file.readAt(at, bytes) == bytes.size() && std::string_view(bytes.data(), bytes.size()) == mark;
}

struct Chunk {
  std::uint64_t at = 0;
  std::uint64_t size = 0;
};

struct Chunks {
  Chunk format;
  Chunk fact;
  Chunk data;
};

Chunks chunksOf(RandomFile& wav) {
  constexpr int enough = 1000;  // a recording has a handful
  Chunks chunks;
  const std::uint64_t end = wav.size();
  std::uint64_t at = 12;
  for (int count = 0; count < enough && at + 8 <= end && isMark(wav, at); ++count) {
    const Chunk body{at + 8, std::min<std::uint64_t>(little(wav, at + 4, 4), end - at - 8)};
    if (reads(wav, at, "fmt ")) chunks.format = body;
    if (reads(wav, at, "fact")) chunks.fact = body;
    if (reads(wav, at, "data")) chunks.data = body;
    at += 8 + body.size + body.size % 2;
  }
  return chunks;
}

// The codes that the header tells a coding by.
constexpr std::uint32_t pcm = 1;
constexpr std::uint32_t msAdpcm = 2;
constexpr std::uint32_t floating = 3;
constexpr std::uint32_t extensible = 0xFFFE;  // samples of any width, with a longer header

WavForm::Coding codingOf(std::uint32_t code) {
  if (code == pcm) return WavForm::Coding::Integers;
  if (code == floating) return WavForm::Coding::Floats;
  return code == msAdpcm ? WavForm::Coding::MsAdpcm : WavForm::Coding::Other;
}

// The longer header tells the coding by the first two of sixteen bytes; the others never differ.
WavForm::Coding extendedCoding(RandomFile& wav, const Chunk& format) {
  constexpr std::uint64_t codeAt = 24;
  constexpr std::string_view rest("\0\0\0\0\x10\0\x80\0\0\xAA\0\x38\x9B\x71", 14);
  std::array<char, rest.size()> bytes{};
  const bool whole = format.size >= codeAt + 2 + rest.size() &&
                     wav.readAt(format.at + codeAt + 2, bytes) == bytes.size() &&
                     std::string_view(bytes.data(), bytes.size()) == rest;
  return whole ? codingOf(little(wav, format.at + codeAt, 2)) : WavForm::Coding::Other;
}

// Each block begins with a header that holds two samples of each channel; a nibble is a sample.
std::uint64_t adpcmFrames(RandomFile& wav, const Chunks& chunks, std::uint64_t channels,
                          std::uint64_t blockSize) {
  const std::uint64_t header = 7 * channels;
  const auto framesIn = [&](std::uint64_t bytes) {
    return bytes < header ? 0 : 2 + (bytes - header) * 2 / channels;
  };
  const std::uint64_t whole = chunks.data.size / blockSize;
  const std::uint64_t frames = whole * framesIn(blockSize) + framesIn(chunks.data.size % blockSize);
  // The last block may be filled up; it is all that the fact can take away.
  const std::uint64_t fact = chunks.fact.size >= 4 ? little(wav, chunks.fact.at, 4) : frames;
  return fact <= frames && fact + framesIn(blockSize) > frames ? fact : frames;
}

}  // namespace

std::chrono::milliseconds WavForm::length() const {
  return std::chrono::milliseconds((frames * 1000 + rate / 2) / rate);
}

std::optional<WavForm> wavForm(RandomFile& file) {
  HeadFirst wav(file);
  constexpr std::uint64_t framesOfBlock = 18;  // where the longer headers have it
  if (!reads(wav, 0, "RIFF") || !reads(wav, 8, "WAVE")) return std::nullopt;
  const Chunks chunks = chunksOf(wav);
  const Chunk& format = chunks.format;
  if (format.size < 16) return std::nullopt;
  const std::uint32_t code = little(wav, format.at, 2);
  if (code != pcm && code != floating && code != extensible && code != msAdpcm) return std::nullopt;
  WavForm form;
  form.coding = code == extensible ? extendedCoding(wav, format) : codingOf(code);
  form.channels = little(wav, format.at + 2, 2);
  form.rate = little(wav, format.at + 4, 4);
  form.blockSize = little(wav, format.at + 12, 2);
  form.bits = little(wav, format.at + 14, 2);
  if (code == msAdpcm) form.blockFrames = little(wav, format.at + framesOfBlock, 2);
  if (form.channels == 0 || form.rate == 0 || form.blockSize == 0) return std::nullopt;
  form.dataAt = chunks.data.at;
  form.dataSize = chunks.data.size;
  form.frames = code == msAdpcm ? adpcmFrames(wav, chunks, form.channels, form.blockSize)
                                : form.dataSize / form.blockSize;
  return form;
}

std::optional<WavForm> wavForm(std::span<const unsigned char> wav) {
  MemoryFile file(wav);
  return wavForm(file);
}

}  // namespace platform
