// What a resting timer waits for: something that wakes it when it changes.
#pragma once

#include <type_traits>
#include <utility>
#include <vector>

namespace platform {

class Timer;

class Observable {
 public:
  Observable() = default;
  ~Observable();
  Observable(const Observable&) = delete;
  Observable& operator=(const Observable&) = delete;

  // It has changed: every timer that rests on it is awake again.
  void wakeTimers();

 private:
  friend class Timer;
  std::vector<Timer*> resting_;
};

// A variable that no control holds and that a timer may rest on. Reads like its value.
template <class T>
class Variable final : public Observable {
 public:
  Variable() = default;
  Variable(T initial)
      : value_(std::move(initial)) {}  // NOLINT(google-explicit-constructor): reads like its value

  Variable& operator=(const std::type_identity_t<T>& value) {
    if (value_ == value) return *this;
    value_ = value;
    wakeTimers();
    return *this;
  }

  [[nodiscard]] const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor): reads like its value
  template <class Other>
  friend bool operator==(const Variable& a, const Other& b) {
    return a.value_ == b;
  }

 private:
  T value_{};
};

}  // namespace platform
