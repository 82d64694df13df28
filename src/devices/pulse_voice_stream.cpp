#include "devices/pulse_voice_stream.h"

#include <algorithm>
#include <thread>
#include <utility>
#include <vector>

#include "devices/wav_decoder.h"

namespace devices {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::int64_t bytesPerMs = WavDecoder::sampleRate * WavDecoder::channelCount * 2 / 1000;
constexpr std::int64_t serverBuffer = 40 * bytesPerMs;
constexpr std::int64_t leadBytes = 30 * bytesPerMs;
constexpr milliseconds aheadTime{1000};  // a repaint may take this long before a file stutters
constexpr std::int64_t aheadBytes = aheadTime.count() * bytesPerMs;
constexpr std::size_t samplesAtOnce = WavDecoder::sampleRate / 4 * WavDecoder::channelCount;
constexpr milliseconds burst{50};         // of sound that the server may take at once
constexpr milliseconds pollInterval{10};  // within a burst of the end
constexpr milliseconds soundingTail{60};  // for the sound that the server and the card still hold at the end
constexpr milliseconds longSilence{3000};
constexpr milliseconds longestStandstill{2000};  // of a server that takes no more sound
constexpr milliseconds longestDelay{500};        // of a sound, before it is given up

}  // namespace

void PulseVoiceStream::FreeStream::operator()(pa_stream* stream) const {
  pa_stream_set_state_callback(stream, nullptr, nullptr);
  pa_stream_disconnect(stream);
  pa_stream_unref(stream);
}

PulseVoiceStream::PulseVoiceStream(PulseConnection& connection, const PulseOutputLevel& level,
                                   std::function<bool()> goOn)
    : connection_(connection), level_(level), goOn_(std::move(goOn)) {}

PulseVoiceStream::~PulseVoiceStream() {
  settle();
  drop();
}

void PulseVoiceStream::drop() {
  if (!stream_) return;
  const PulseConnection::Lock lock(connection_);
  holding_.reset();
  held_ = false;
  stream_.reset();
}

void PulseVoiceStream::holdLater() {
  const PulseConnection::Lock lock(connection_);
  const auto hold = [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) {
    static_cast<PulseVoiceStream*>(self)->cork(true);
  };
  holding_ = connection_.callAfter(longSilence, hold, this);
}

void PulseVoiceStream::release() {
  holding_.reset();
  if (held_) cork(false);
}

void PulseVoiceStream::cork(bool held) {
  held_ = held;
  pa_operation* request = broken() ? nullptr : pa_stream_cork(stream_.get(), held ? 1 : 0, nullptr, nullptr);
  if (request) pa_operation_unref(request);
}

bool PulseVoiceStream::broken() const {
  return !PA_STREAM_IS_GOOD(pa_stream_get_state(stream_.get()));
}

bool PulseVoiceStream::open() {
  if (!connection_.ready()) {
    drop();
    return false;
  }
  {
    const PulseConnection::Lock lock(connection_);
    if (stream_ && !broken()) {
      release();
      return true;
    }
    drop();
    const pa_sample_spec format{PA_SAMPLE_S16LE, WavDecoder::sampleRate, WavDecoder::channelCount};
    stream_.reset(pa_stream_new(connection_.context(), "Voix", &format, nullptr));
    if (!stream_) return false;
    pa_stream_set_state_callback(
        stream_.get(), [](pa_stream*, void* owner) { static_cast<PulseConnection*>(owner)->notify(); },
        &connection_);
    constexpr auto serversChoice = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer{serversChoice, serverBuffer, 0, serversChoice, serversChoice};
    const pa_cvolume volume = level_.volumeOf(*pa_stream_get_channel_map(stream_.get()));
    pa_stream_connect_playback(stream_.get(), nullptr, &buffer, PA_STREAM_ADJUST_LATENCY, &volume, nullptr);
  }
  const auto isOpen = [this] { return pa_stream_get_state(stream_.get()) == PA_STREAM_READY; };
  bool opened = false;
  if (!connection_.waitUntil([&] { return (opened = isOpen()) || broken(); }, longestDelay, goOn_))
    connection_.suspect();
  if (!opened) drop();
  return opened;
}

// How far the server has played and been written to; none if it does not answer.
std::optional<PulseVoiceStream::Position> PulseVoiceStream::position(const std::function<bool()>& goOn) {
  pa_operation* request = nullptr;
  {
    const PulseConnection::Lock lock(connection_);
    if (!broken()) request = pa_stream_update_timing_info(stream_.get(), nullptr, nullptr);
  }
  if (!connection_.finish(request, longestDelay, goOn)) return {};
  const PulseConnection::Lock lock(connection_);
  const pa_timing_info* timing = pa_stream_get_timing_info(stream_.get());
  if (!timing || timing->read_index_corrupt != 0 || timing->write_index_corrupt != 0) return {};
  return Position{timing->read_index, timing->write_index};
}

bool PulseVoiceStream::write(std::span<const std::int16_t> samples, const Position& at) {
  const PulseConnection::Lock lock(connection_);
  // The stream runs on in silence after the last prompt, so the place to write at may lie in the past.
  const auto from = at.read > at.write ? PA_SEEK_RELATIVE_ON_READ : PA_SEEK_RELATIVE;
  return !broken() &&
         pa_stream_write(stream_.get(), samples.data(), samples.size_bytes(), nullptr, 0, from) == 0;
}

void PulseVoiceStream::flush() {
  pa_operation* request = nullptr;
  {
    const PulseConnection::Lock lock(connection_);
    if (!broken()) request = pa_stream_flush(stream_.get(), nullptr, nullptr);
  }
  connection_.finish(request);
}

// Plays until `lead` bytes are left or `goOn` is false. False if the stream breaks, or if it is not done when
// it is given up: but a sound that only began late may then end on its own.
bool PulseVoiceStream::playTo(const Source& source, std::int64_t lead, steady_clock::time_point givenUp,
                              const std::function<bool()>& goOn) {
  std::vector<std::int16_t> piece(samplesAtOnce);
  bool ended = false;
  std::int64_t lastRead = -1;
  bool moved = false;
  auto movedAt = steady_clock::now();
  for (;;) {
    const auto at = position(goOn);
    if (!at) return false;
    if (goOn && !goOn()) {
      flush();
      return true;
    }
    const std::int64_t queued = at->write - at->read;
    if (!ended && queued < aheadBytes) {
      const std::size_t count = source(piece);
      ended = count == 0;
      if (!ended && !write({piece.data(), count}, *at)) return false;
      if (!ended) continue;
    }
    if (ended && queued <= lead) return true;
    const auto now = steady_clock::now();
    if (at->read != lastRead) {
      moved = lastRead >= 0;
      movedAt = now;
    }
    lastRead = at->read;
    if (now >= givenUp) return ended && moved;
    if (now - movedAt > longestStandstill) return false;
    const milliseconds left((queued - (ended ? lead : aheadBytes)) / bytesPerMs + 1);
    const milliseconds untilNearEnd = left > burst ? left - burst : std::min(left, pollInterval);
    const milliseconds pause = ended ? untilNearEnd : left + burst;
    const auto rest = std::chrono::ceil<milliseconds>(givenUp - now);
    connection_.waitUntil([this] { return broken(); }, std::min(pause, rest), goOn);
  }
}

bool PulseVoiceStream::play(const Source& source, milliseconds length) {
  const auto givenUp = steady_clock::now() + length + longestDelay;
  if (!open()) return false;
  if (playTo(source, leadBytes, givenUp, goOn_)) {
    holdLater();
    return true;
  }
  drop();
  return false;
}

void PulseVoiceStream::settle() {
  if (!stream_ || connection_.hanging()) return;
  {
    const PulseConnection::Lock lock(connection_);
    if (held_) return;
    release();
  }
  std::size_t silence = 10 * bytesPerMs / 2;
  const auto source = [&silence](std::span<std::int16_t> samples) {
    const std::size_t count = std::exchange(silence, 0);
    std::fill_n(samples.begin(), count, std::int16_t{0});
    return count;
  };
  if (playTo(source, 0, steady_clock::now() + aheadTime + longestDelay, {}))
    std::this_thread::sleep_for(soundingTail);
  holdLater();
}

}  // namespace devices
