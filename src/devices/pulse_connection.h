// The program's one connection to the sound server (PulseAudio, or PipeWire in its place), shared by all that
// plays, records or sets a level. The library's own thread runs in here.
#pragma once

#include <pulse/pulseaudio.h>

#include <atomic>
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
  // Keeps the library's thread from running: every pa_ call on the context or a stream needs one. Locks may
  // be nested, but none may be held during a wait below, since no answer could arrive.
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

  // How long a request may take. A server that takes longer counts as hanging, and nobody waits for it again
  // until it has answered.
  static constexpr std::chrono::milliseconds patience{300};

  // Whether the server answers. If not, connects again, at most once a second.
  bool ready();
  // Whether the server owes an answer.
  [[nodiscard]] bool hanging() const { return hanging_; }
  // To be called where the server did not do in time what it was asked for; any answer clears it.
  void suspect();
  // Whether the server has a real device to play on. Of a server that hangs: whether it had one before.
  bool hasLoudspeaker();
  // `lost` is called on the library's thread whenever a connection, or an attempt at one, comes to its end.
  void onLoss(std::function<void()> lost);
  // The live context, to be used under a Lock and only after ready().
  [[nodiscard]] pa_context* context() const { return context_.get(); }

  // Frees a timer; needs a Lock.
  struct FreeTimer {
    pa_mainloop_api* api = nullptr;
    void operator()(pa_time_event* timer) const { api->time_free(timer); }
  };
  using Timer = std::unique_ptr<pa_time_event, FreeTimer>;
  // Calls once, on the library's thread and under its Lock, after a time. Needs a Lock.
  [[nodiscard]] Timer callAfter(std::chrono::milliseconds time, pa_time_event_cb_t call, void* owner);

  // Wakes a wait below; for the library's callbacks.
  void notify();
  // Waits until `done` is true, the time is over or `goOn` is false; true only if done. `done` is called
  // under a Lock, `goOn` without one and at least every 20 ms.
  bool waitUntil(const std::function<bool()>& done, std::chrono::milliseconds timeout,
                 const std::function<bool()>& goOn = {});
  // Waits for a request to end and frees it. False if it fails, was refused (null), or takes too long; it is
  // then cancelled, so that its callback is never called. Does not wait for a server that hangs.
  bool finish(pa_operation* operation, std::chrono::milliseconds timeout = patience,
              const std::function<bool()>& goOn = {});

 private:
  struct FreeLoop {
    void operator()(pa_threaded_mainloop* loop) const;
  };
  struct FreeContext {
    void operator()(pa_context* context) const;
  };

  void connect();
  void waitForAttempt();
  void probe();
  static void stateChanged(pa_context* context, void* self);
  [[nodiscard]] bool alive() const;

  std::string applicationName_;
  std::mutex mutex_;
  std::condition_variable changed_;
  unsigned changes_ = 0;
  std::chrono::steady_clock::time_point attemptedAt_{};
  std::function<void()> lost_;  // under a Lock
  std::atomic<bool> hanging_ = false;
  bool loudspeakerSeen_ = false;
  std::unique_ptr<pa_threaded_mainloop, FreeLoop> loop_;
  std::unique_ptr<pa_context, FreeContext> context_;
};

}  // namespace devices
