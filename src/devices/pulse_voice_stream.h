// The playback stream of the voice. So that prompts follow each other without a gap, it stays open between
// them, and play() returns 30 ms before the end of a sound. After some seconds of silence the server holds
// it, since it would ask for sound some 50 times a second.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "devices/pulse_connection.h"
#include "devices/pulse_output_level.h"

namespace devices {

class PulseVoiceStream {
 public:
  // Fills a piece with 44100 Hz stereo samples and returns how many; 0 at the end.
  using Source = std::function<std::size_t(std::span<std::int16_t>)>;

  // `goOn` is asked about every 20 ms while a play waits; false ends the play and silences it.
  PulseVoiceStream(PulseConnection& connection, const PulseOutputLevel& level, std::function<bool()> goOn);
  // Waits until the last sound has ended.
  ~PulseVoiceStream();
  PulseVoiceStream(const PulseVoiceStream&) = delete;
  PulseVoiceStream& operator=(const PulseVoiceStream&) = delete;

  // Returns 30 ms before the end of a sound of this length. False if it could not be heard to its end within
  // half a second more, or the stream cannot be opened or breaks; the next call then opens another.
  bool play(const Source& source, std::chrono::milliseconds length);
  // Waits until the last sound has been heard to its end.
  void settle();

 private:
  struct FreeStream {
    void operator()(pa_stream* stream) const;
  };
  struct Position {  // in bytes since the stream was opened
    std::int64_t read = 0;
    std::int64_t write = 0;
  };

  bool open();
  void drop();
  void holdLater();
  // Ends the hold, or its timer. Needs a Lock.
  void release();
  void cork(bool held);
  [[nodiscard]] bool broken() const;
  std::optional<Position> position(const std::function<bool()>& goOn);
  bool write(std::span<const std::int16_t> samples, const Position& at);
  void flush();
  bool playTo(const Source& source, std::int64_t lead, std::chrono::steady_clock::time_point givenUp,
              const std::function<bool()>& goOn);

  PulseConnection& connection_;
  const PulseOutputLevel& level_;
  std::function<bool()> goOn_;
  std::unique_ptr<pa_stream, FreeStream> stream_;
  PulseConnection::Timer holding_;
  bool held_ = false;  // this and holding_ are used under the connection's lock
};

}  // namespace devices
