#include "devices/wav_decoder.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace devices {

namespace {

constexpr std::size_t framesAtOnce = 4096;

std::int16_t toSample(float value) {
  return static_cast<std::int16_t>(std::lrint(std::clamp(value * 32768.0F, -32768.0F, 32767.0F)));
}

}  // namespace

SF_VIRTUAL_IO WavDecoder::memoryFile() {
  SF_VIRTUAL_IO io{};
  io.get_filelen = [](void* user) {
    return static_cast<sf_count_t>(static_cast<const Memory*>(user)->bytes.size());
  };
  io.seek = [](sf_count_t offset, int whence, void* user) {
    auto& memory = *static_cast<Memory*>(user);
    const auto size = static_cast<sf_count_t>(memory.bytes.size());
    const sf_count_t base = whence == SEEK_SET   ? 0
                            : whence == SEEK_CUR ? static_cast<sf_count_t>(memory.at)
                                                 : size;
    memory.at = static_cast<std::size_t>(std::clamp<sf_count_t>(base + offset, 0, size));
    return static_cast<sf_count_t>(memory.at);
  };
  io.read = [](void* to, sf_count_t count, void* user) {
    auto& memory = *static_cast<Memory*>(user);
    const std::size_t some = std::min(static_cast<std::size_t>(count), memory.bytes.size() - memory.at);
    std::memcpy(to, memory.bytes.data() + memory.at, some);
    memory.at += some;
    return static_cast<sf_count_t>(some);
  };
  io.tell = [](void* user) { return static_cast<sf_count_t>(static_cast<const Memory*>(user)->at); };
  return io;
}

WavDecoder::WavDecoder(std::span<const unsigned char> wav) : memory_{wav} {
  if (wav.empty()) return;
  SF_VIRTUAL_IO io = memoryFile();
  file_.reset(sf_open_virtual(&io, SFM_READ, &info_, &memory_));
  prepare();
}

WavDecoder::WavDecoder(const std::string& path) {
  // A pipe or a device can be opened too, but reading it might never end.
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return;
  file_.reset(sf_open(path.c_str(), SFM_READ, &info_));
  prepare();
}

void WavDecoder::prepare() {
  if (!file_) return;
  channels_ = std::min(info_.channels, channelCount);
  input_.resize(framesAtOnce * static_cast<std::size_t>(info_.channels));
  if (info_.samplerate == sampleRate) return;
  int error = 0;
  if (src_is_valid_ratio(static_cast<double>(sampleRate) / info_.samplerate) != 0) {
    converter_.reset(src_callback_new(
        [](void* self, float** data) { return static_cast<WavDecoder*>(self)->fill(data, framesAtOnce); },
        SRC_SINC_MEDIUM_QUALITY, channels_, &error, this));
  }
  if (!converter_) file_.reset();
}

// Reads the next frames of the file, of more than two channels only the first two.
long WavDecoder::fill(float** data, std::size_t wanted) {
  const auto frames = sf_readf_float(file_.get(), input_.data(), static_cast<sf_count_t>(wanted));
  if (info_.channels > channels_) {
    for (sf_count_t frame = 0; frame < frames; ++frame) {
      std::copy_n(input_.begin() + frame * info_.channels, channels_, input_.begin() + frame * channels_);
    }
  }
  *data = input_.data();
  return static_cast<long>(frames);
}

std::chrono::milliseconds WavDecoder::length() const {
  return std::chrono::milliseconds(opened() ? info_.frames * 1000 / info_.samplerate : 0);
}

std::size_t WavDecoder::read(std::span<std::int16_t> samples) {
  if (!opened()) return 0;
  const std::size_t wanted = std::min(samples.size() / channelCount, framesAtOnce);
  float* from = nullptr;
  long frames = 0;
  if (converter_) {
    output_.resize(wanted * static_cast<std::size_t>(channels_));
    from = output_.data();
    frames = src_callback_read(converter_.get(), static_cast<double>(sampleRate) / info_.samplerate,
                               static_cast<long>(wanted), from);
  } else {
    frames = fill(&from, wanted);
  }
  const std::size_t step = channels_ == 1 ? 0 : 1;
  const auto count = static_cast<std::size_t>(std::max(frames, 0L));
  for (std::size_t frame = 0; frame < count; ++frame) {
    const float* at = from + frame * static_cast<std::size_t>(channels_);
    samples[frame * 2] = toSample(at[0]);
    samples[frame * 2 + 1] = toSample(at[step]);
  }
  return count * channelCount;
}

}  // namespace devices
