#include "platform/recording.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/whole_file.h"

namespace platform {
namespace {

class Writer {
 public:
  Writer& mark(std::string_view text) {
    bytes_.insert(bytes_.end(), text.begin(), text.end());
    return *this;
  }
  Writer& little(std::size_t value, int size) {
    for (int i = 0; i < size; ++i) bytes_.push_back(static_cast<char>(value >> (8 * i) & 0xFFU));
    return *this;
  }
  std::vector<char> release() { return std::move(bytes_); }

 private:
  std::vector<char> bytes_;
};

}  // namespace

void RecordingFormat::set(RecordingFigure figure, int value) {
  switch (figure) {
    case RecordingFigure::SamplesPerSecond:
      if (value >= 4000 && value <= 192000) samplesPerSecond = value;
      break;
    case RecordingFigure::BitsPerSample:
      if (value == 8 || value == 16) bitsPerSample = value;
      break;
    case RecordingFigure::Channels:
      if (value == 1 || value == 2) channels = value;
      break;
  }
}

std::int64_t RecordingFormat::bytesFor(std::int64_t milliseconds) const {
  return milliseconds * samplesPerSecond / 1000 * frameBytes();
}

std::int64_t RecordingFormat::millisecondsFor(std::int64_t bytes) const {
  const std::int64_t frames = bytes / frameBytes();
  return (frames * 1000 + samplesPerSecond / 2) / samplesPerSecond;
}

std::vector<char> wavFile(const RecordingFormat& format, std::span<const unsigned char> samples) {
  constexpr std::size_t afterSize = 36;  // bytes of the header behind the file's size
  const auto number = [](int value) { return static_cast<std::size_t>(value); };
  const std::size_t padding = samples.size() % 2;
  Writer writer;
  writer.mark("RIFF").little(afterSize + samples.size() + padding, 4).mark("WAVE");
  writer.mark("fmt ").little(16, 4).little(1, 2).little(number(format.channels), 2);
  writer.little(number(format.samplesPerSecond), 4).little(number(format.bytesPerSecond()), 4);
  writer.little(number(format.frameBytes()), 2).little(number(format.bitsPerSample), 2);
  writer.mark("data").little(samples.size(), 4);
  std::vector<char> bytes = writer.release();
  bytes.reserve(bytes.size() + samples.size() + padding);
  std::transform(samples.begin(), samples.end(), std::back_inserter(bytes),
                 [](unsigned char sample) { return static_cast<char>(sample); });
  if (padding != 0) bytes.push_back(0);
  return bytes;
}

void saveWhole(FileSystem& files, const std::string& path, std::span<const char> bytes) {
  WholeFile file(files, path, WholeFile::Start::Empty);
  file.writeAt(0, bytes);
  file.commit();
}

}  // namespace platform
