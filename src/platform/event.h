// The event channel of a control: one handler, owned by the logic. Calling the event runs the handler, so a
// press of a button from code is `form.MyButton3.click()`.
#pragma once

#include <functional>
#include <stdexcept>
#include <utility>

namespace platform {

template <class... Args>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  void handle(std::function<void(Args...)> handler) {
    if (handler_) throw std::logic_error("this event has its handler already");
    handler_ = std::move(handler);
  }
  void operator()(Args... args) const {
    if (handler_) handler_(args...);
  }
  [[nodiscard]] bool handled() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace platform
