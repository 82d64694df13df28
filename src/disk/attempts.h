// System calls, each made anew as long as a signal interrupts it.
#pragma once

#include <cerrno>
#include <cstddef>
#include <functional>
#include <string_view>

namespace disk {

// Stands before each call, for a test: it may fail the call by an error number, or lower the bytes to be
// moved.
using BeforeCall = std::function<int(std::string_view call, std::size_t& bytes)>;

class Attempts {
 public:
  explicit Attempts(BeforeCall before) : before_(std::move(before)) {}

  // What a call returns that moves bytes: below 0 it failed, and errno tells why. `call` gets the bytes that
  // it may move.
  template <class Call>
  auto move(std::string_view name, std::size_t bytes, const Call& call) const {
    constexpr int most = 1000;  // a call that is always interrupted would else never end
    for (int tries = 1;; ++tries) {
      std::size_t allowed = bytes;
      const int error = before_ ? before_(name, allowed) : 0;
      auto result = static_cast<decltype(call(allowed))>(-1);
      if (error == 0) {
        result = call(allowed);
      } else {
        errno = error;
      }
      if (result >= 0 || errno != EINTR || tries == most) return result;
    }
  }
  // The same for any other call.
  template <class Call>
  auto make(std::string_view name, const Call& call) const {
    return move(name, 0, [&](std::size_t) { return call(); });
  }

 private:
  BeforeCall before_;
};

}  // namespace disk
