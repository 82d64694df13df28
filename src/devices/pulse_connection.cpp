#include "devices/pulse_connection.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace devices {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds attemptPatience{500};
constexpr milliseconds attemptPause{1000};  // callers ask several times a second
constexpr milliseconds askInterval{20};     // for whether to go on, which lets the caller repaint
constexpr milliseconds answerPatience{500};

}  // namespace

void PulseConnection::FreeLoop::operator()(pa_threaded_mainloop* loop) const {
  pa_threaded_mainloop_stop(loop);
  pa_threaded_mainloop_free(loop);
}

void PulseConnection::FreeContext::operator()(pa_context* context) const {
  pa_context_set_state_callback(context, nullptr, nullptr);
  pa_context_disconnect(context);
  pa_context_unref(context);
}

PulseConnection::PulseConnection(std::string applicationName)
    : applicationName_(std::move(applicationName)), loop_(pa_threaded_mainloop_new()) {
  if (loop_ && pa_threaded_mainloop_start(loop_.get()) < 0) loop_.reset();
}

PulseConnection::~PulseConnection() {
  if (!loop_) return;
  const Lock lock(*this);
  context_.reset();
}

bool PulseConnection::alive() const {
  return context_ && PA_CONTEXT_IS_GOOD(pa_context_get_state(context_.get()));
}

void PulseConnection::onLoss(std::function<void()> lost) {
  if (!loop_) return;
  const Lock lock(*this);
  lost_ = std::move(lost);
}

void PulseConnection::stateChanged(pa_context* context, void* self) {
  auto& connection = *static_cast<PulseConnection*>(self);
  connection.notify();
  if (connection.lost_ && !PA_CONTEXT_IS_GOOD(pa_context_get_state(context))) connection.lost_();
}

void PulseConnection::connect() {
  attemptedAt_ = steady_clock::now();
  context_.reset(pa_context_new(pa_threaded_mainloop_get_api(loop_.get()), applicationName_.c_str()));
  if (!context_) return;
  pa_context_set_state_callback(context_.get(), &stateChanged, this);
  pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

bool PulseConnection::ready() {
  if (!loop_) return false;
  {
    const Lock lock(*this);
    if (!alive() && (!context_ || steady_clock::now() - attemptedAt_ >= attemptPause)) connect();
  }
  const auto isReady = [this] {
    return context_ && pa_context_get_state(context_.get()) == PA_CONTEXT_READY;
  };
  const auto left =
      std::chrono::duration_cast<milliseconds>(attemptedAt_ + attemptPatience - steady_clock::now());
  waitUntil([&] { return isReady() || !alive(); }, std::max(left, 0ms));
  const Lock lock(*this);
  return isReady();
}

bool PulseConnection::hasLoudspeaker() {
  if (!ready()) return false;
  bool found = false;
  pa_operation* request = nullptr;
  {
    const Lock lock(*this);
    request = pa_context_get_sink_info_list(
        context_.get(),
        [](pa_context*, const pa_sink_info* sink, int, void* answer) {
          if (sink && sink->name != noCard) *static_cast<bool*>(answer) = true;
        },
        &found);
  }
  return finish(request, answerPatience) && found;
}

PulseConnection::Timer PulseConnection::callAfter(milliseconds time, pa_time_event_cb_t call, void* owner) {
  const pa_usec_t when = pa_rtclock_now() + static_cast<pa_usec_t>(std::chrono::microseconds(time).count());
  pa_time_event* timer = pa_context_rttime_new(context_.get(), when, call, owner);
  return Timer(timer, FreeTimer{pa_threaded_mainloop_get_api(loop_.get())});
}

void PulseConnection::notify() {
  {
    const std::lock_guard guard(mutex_);
    ++changes_;
  }
  changed_.notify_all();
}

bool PulseConnection::waitUntil(const std::function<bool()>& done, milliseconds timeout,
                                const std::function<bool()>& goOn) {
  const auto deadline = steady_clock::now() + timeout;
  for (;;) {
    std::unique_lock guard(mutex_);
    const unsigned seen = changes_;
    guard.unlock();
    {
      const Lock lock(*this);
      if (done()) return true;
    }
    const auto now = steady_clock::now();
    if (now >= deadline || (goOn && !goOn())) return false;
    guard.lock();
    const auto until = goOn ? std::min(deadline, now + askInterval) : deadline;
    changed_.wait_until(guard, until, [&] { return changes_ != seen; });
  }
}

bool PulseConnection::finish(pa_operation* operation, milliseconds timeout,
                             const std::function<bool()>& goOn) {
  if (!operation) return false;
  {
    const Lock lock(*this);
    pa_operation_set_state_callback(
        operation, [](pa_operation*, void* self) { static_cast<PulseConnection*>(self)->notify(); }, this);
  }
  waitUntil([&] { return pa_operation_get_state(operation) != PA_OPERATION_RUNNING; }, timeout, goOn);
  const Lock lock(*this);
  const bool done = pa_operation_get_state(operation) == PA_OPERATION_DONE;
  pa_operation_set_state_callback(operation, nullptr, nullptr);
  if (!done) pa_operation_cancel(operation);
  pa_operation_unref(operation);
  return done;
}

}  // namespace devices
