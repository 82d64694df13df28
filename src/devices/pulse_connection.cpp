#include "devices/pulse_connection.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace devices {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds attemptPause{1000};  // callers ask several times a second
constexpr milliseconds askInterval{20};     // for whether to go on, which lets the caller repaint

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
  const pa_context_state_t state = pa_context_get_state(context);
  // A server that is gone does not hang; a request that timed out tells nothing new.
  const bool gone = !PA_CONTEXT_IS_GOOD(state) && pa_context_errno(context) != PA_ERR_TIMEOUT;
  if (state == PA_CONTEXT_READY || gone) connection.hanging_ = false;
  connection.notify();
  if (connection.lost_ && !PA_CONTEXT_IS_GOOD(state)) connection.lost_();
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
  if (!hanging_) waitForAttempt();
  const Lock lock(*this);
  return !hanging_ && context_ && pa_context_get_state(context_.get()) == PA_CONTEXT_READY;
}

void PulseConnection::waitForAttempt() {
  const auto decided = [this] {
    return !alive() || pa_context_get_state(context_.get()) == PA_CONTEXT_READY;
  };
  if (!waitUntil(decided, patience)) suspect();
}

void PulseConnection::suspect() {
  const Lock lock(*this);
  if (alive() && !hanging_.exchange(true)) probe();
}

// Whatever comes back, the server runs again, unless the library gave up waiting for it. Until the connection
// is ready, becoming so is the answer.
void PulseConnection::probe() {
  if (pa_context_get_state(context_.get()) != PA_CONTEXT_READY) return;
  const auto answered = [](pa_context* context, const pa_server_info* server, void* self) {
    auto& connection = *static_cast<PulseConnection*>(self);
    if (server == nullptr && pa_context_errno(context) == PA_ERR_TIMEOUT) return connection.probe();
    connection.hanging_ = false;
  };
  pa_operation* request = pa_context_get_server_info(context_.get(), answered, this);
  if (request != nullptr) pa_operation_unref(request);
}

bool PulseConnection::hasLoudspeaker() {
  if (!ready()) return hanging_ && loudspeakerSeen_;
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
  if (finish(request))
    loudspeakerSeen_ = found;
  else if (!hanging_)
    loudspeakerSeen_ = false;
  return loudspeakerSeen_;
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
  const auto ended = [&] { return pa_operation_get_state(operation) != PA_OPERATION_RUNNING; };
  const auto deadline = steady_clock::now() + timeout;
  if (!waitUntil(ended, hanging_ ? 0ms : timeout, goOn) && steady_clock::now() >= deadline) suspect();
  const Lock lock(*this);
  const bool done = pa_operation_get_state(operation) == PA_OPERATION_DONE;
  pa_operation_set_state_callback(operation, nullptr, nullptr);
  if (!done) pa_operation_cancel(operation);
  pa_operation_unref(operation);
  return done;
}

}  // namespace devices
