#include "devices/pulse_recorder.h"

#include <algorithm>

namespace devices {
namespace {

constexpr std::size_t longestTake = 600;  // s; a forgotten recording must not fill the memory
constexpr std::uint32_t serversChoice = static_cast<std::uint32_t>(-1);

}  // namespace

void PulseRecorder::FreeStream::operator()(pa_stream* stream) const {
  pa_stream_set_read_callback(stream, nullptr, nullptr);
  pa_stream_disconnect(stream);
  pa_stream_unref(stream);
}

void PulseRecorder::start(const platform::RecordingFormat& format) {
  stop();
  samples_.clear();
  if (!connection_.ready()) return;
  const auto bytesPerSecond = static_cast<std::size_t>(format.bytesPerSecond());
  limit_ = longestTake * bytesPerSecond;
  const PulseConnection::Lock lock(connection_);
  const pa_sample_spec sampling{format.bitsPerSample == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE,
                                static_cast<std::uint32_t>(format.samplesPerSecond),
                                static_cast<std::uint8_t>(format.channels)};
  stream_.reset(pa_stream_new(connection_.context(), "Annonce", &sampling, nullptr));
  if (!stream_) return;
  pa_stream_set_read_callback(stream_.get(), &PulseRecorder::read, this);
  const auto fragment = static_cast<std::uint32_t>(bytesPerSecond / 50);
  const pa_buffer_attr buffer{serversChoice, serversChoice, serversChoice, serversChoice, fragment};
  if (pa_stream_connect_record(stream_.get(), nullptr, &buffer, PA_STREAM_ADJUST_LATENCY) < 0)
    stream_.reset();
}

void PulseRecorder::read(pa_stream* stream, std::size_t, void* recorder) {
  auto& self = *static_cast<PulseRecorder*>(recorder);
  while (pa_stream_readable_size(stream) > 0) {
    const void* data = nullptr;
    std::size_t size = 0;
    if (pa_stream_peek(stream, &data, &size) < 0 || size == 0) return;
    const std::size_t room = self.limit_ - std::min(self.limit_, self.samples_.size());
    if (data != nullptr) {  // null marks a gap in the recording
      const auto* bytes = static_cast<const unsigned char*>(data);
      self.samples_.insert(self.samples_.end(), bytes, bytes + std::min(size, room));
    }
    pa_stream_drop(stream);
  }
}

void PulseRecorder::stop() {
  if (!stream_) return;
  const PulseConnection::Lock lock(connection_);
  stream_.reset();
}

bool PulseRecorder::running() const {
  if (!stream_) return false;
  const PulseConnection::Lock lock(connection_);
  return PA_STREAM_IS_GOOD(pa_stream_get_state(stream_.get()));
}

std::size_t PulseRecorder::size() const {
  const PulseConnection::Lock lock(connection_);
  return samples_.size();
}

std::vector<unsigned char> PulseRecorder::samples() const {
  const PulseConnection::Lock lock(connection_);
  return samples_;
}

}  // namespace devices
