// The state channel of a control: a value whose assignment tells the watchers, after the write and only
// when the value really changed. Addressed by name only at the edges (console, tests, Qt binder).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/observable.h"

namespace platform {

class Component;

enum class Prop : std::uint8_t {
  Caption,
  Text,
  Value,
  Index,
  Visible,
  Enabled,
  ToolTip,
  Colour,
  Bold,
  Size,  // font size in points
  Top,   // geometry in twips, of the controls that the logic moves
  Left,
  Width,
  Height,
  Interval,  // ms
  Lines,     // the entries of a list; told to watchers, not readable as one text
  Picture,   // which picture an image shows
  Focus,     // the logic hands the keyboard over; told to watchers, nothing to read
};

[[nodiscard]] std::string_view propertyName(Prop prop);
[[nodiscard]] std::optional<Prop> propertyByName(std::string_view name);

// A text colour; `automatic` is the front's own.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool automatic = true;
  [[nodiscard]] static constexpr Colour rgb(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    return {r, g, b, false};
  }
  bool operator==(const Colour&) const = default;
};

[[nodiscard]] std::string toText(const std::string& value);
[[nodiscard]] std::string toText(int value);
[[nodiscard]] std::string toText(bool value);
[[nodiscard]] std::string toText(const Colour& value);  // "R,G,B", empty for the automatic one
// These throw std::invalid_argument if the text is no such value.
void fromText(std::string_view text, std::string& value);
void fromText(std::string_view text, int& value);
void fromText(std::string_view text, bool& value);
void fromText(std::string_view text, Colour& value);

class PropertyBase : public Observable {
 public:
  PropertyBase(Component& owner, Prop id);
  virtual ~PropertyBase() = default;

  [[nodiscard]] Prop id() const { return id_; }
  [[nodiscard]] virtual std::string asText() const = 0;
  virtual void assignText(std::string_view text) = 0;

 protected:
  void changed();

 private:
  Component& owner_;
  Prop id_;
};

template <class T>
class Property final : public PropertyBase {
 public:
  Property(Component& owner, Prop id, T initial) : PropertyBase(owner, id), value_(std::move(initial)) {}

  Property& operator=(const std::type_identity_t<T>& value) {
    if (value_ == value) return *this;
    value_ = value;
    changed();
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }

  [[nodiscard]] const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor): reads like its value
  friend bool operator==(const Property& a, const std::type_identity_t<T>& b) { return a.value_ == b; }
  friend bool operator==(const Property& a, const Property& b) { return a.value_ == b.value_; }

  [[nodiscard]] std::string asText() const override { return toText(value_); }
  void assignText(std::string_view text) override {
    T value{};
    fromText(text, value);
    *this = value;
  }

 private:
  T value_;
};

}  // namespace platform
