// The one connection to the sound server (PulseAudio, or PipeWire in its place), for all that sounds,
// records or sets a level. The library's own thread lives in here and touches nothing but this object.
#pragma once

#include <pulse/pulseaudio.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace devices {

// The device that the servers show when there is no sound card.
inline constexpr std::string_view noCard = "auto_null";

class PulseConnection {
 public:
  // Holds the library's thread off. Every pa_ call on the context or a stream is made under one; may be
  // nested, but no wait below is called while one lives, since nothing would ever arrive.
  class Lock {
   public:
    explicit Lock(const PulseConnection& connection) : loop_(connection.loop_.get()) {
      pa_threaded_mainloop_lock(loop_);
    }
    ~Lock() { pa_threaded_mainloop_unlock(loop_); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

   private:
    pa_threaded_mainloop* loop_;
  };

  explicit PulseConnection(std::string applicationName);
  ~PulseConnection();
  PulseConnection(const PulseConnection&) = delete;
  PulseConnection& operator=(const PulseConnection&) = delete;

  // Whether the server answers. A lost or refused connection is tried anew, no more than once a second, so a
  // server that comes back is found; an attempt that hangs is waited for once, and shortly.
  bool ready();
  // Whether the server answers and has a device to play on; what only stands in for one does not count.
  bool hasLoudspeaker();
  // The live context, to be used under a Lock and only after ready().
  [[nodiscard]] pa_context* context() const { return context_.get(); }

  // Wakes a wait below; for the library's callbacks.
  void notify();
  // Waits until `done`, which is asked under a Lock, or the time is over, or `goOn` says no. `goOn` is asked
  // without a Lock at least every 10 ms. True only if done.
  bool waitUntil(const std::function<bool()>& done, std::chrono::milliseconds timeout,
                 const std::function<bool()>& goOn = {});
  // Waits for a request's end and disposes of it; one that does not end in time is cancelled, so that its
  // callback never comes. Takes null for a request that was refused.
  bool finish(pa_operation* operation, std::chrono::milliseconds timeout,
              const std::function<bool()>& goOn = {});

 private:
  struct FreeLoop {
    void operator()(pa_threaded_mainloop* loop) const;
  };
  struct FreeContext {
    void operator()(pa_context* context) const;
  };

  void connect();
  [[nodiscard]] bool alive() const;

  std::string applicationName_;
  std::mutex mutex_;
  std::condition_variable changed_;
  unsigned changes_ = 0;
  std::chrono::steady_clock::time_point attemptedAt_{};
  std::unique_ptr<pa_threaded_mainloop, FreeLoop> loop_;
  std::unique_ptr<pa_context, FreeContext> context_;
};

}  // namespace devices
