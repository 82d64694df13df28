// Records the microphone into memory through the sound server.
#pragma once

#include <memory>
#include <vector>

#include "devices/pulse_connection.h"
#include "platform/recording.h"

namespace devices {

class PulseRecorder {
 public:
  explicit PulseRecorder(PulseConnection& connection) : connection_(connection) {}
  ~PulseRecorder() { stop(); }
  PulseRecorder(const PulseRecorder&) = delete;
  PulseRecorder& operator=(const PulseRecorder&) = delete;

  // Drops the previous take. Without a server or a microphone nothing is recorded.
  void start(const platform::RecordingFormat& format);
  void stop();
  [[nodiscard]] bool running() const;
  [[nodiscard]] std::size_t size() const;
  [[nodiscard]] std::vector<unsigned char> samples() const;

 private:
  struct FreeStream {
    void operator()(pa_stream* stream) const;
  };
  static void read(pa_stream* stream, std::size_t, void* recorder);

  PulseConnection& connection_;
  std::unique_ptr<pa_stream, FreeStream> stream_;
  std::vector<unsigned char> samples_;  // written by the library's thread, under its lock
  std::size_t limit_ = 0;
};

}  // namespace devices
