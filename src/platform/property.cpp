#include "platform/property.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "platform/component.h"
#include "platform/text.h"

namespace platform {
namespace {

struct PropName {
  Prop prop;
  std::string_view name;
};

constexpr std::array<PropName, 15> names{{{Prop::Caption, "caption"},
                                          {Prop::Text, "text"},
                                          {Prop::Value, "value"},
                                          {Prop::Index, "index"},
                                          {Prop::Visible, "visible"},
                                          {Prop::Enabled, "enabled"},
                                          {Prop::ToolTip, "tooltip"},
                                          {Prop::Colour, "colour"},
                                          {Prop::Bold, "bold"},
                                          {Prop::Size, "size"},
                                          {Prop::Top, "top"},
                                          {Prop::Left, "left"},
                                          {Prop::Width, "width"},
                                          {Prop::Height, "height"},
                                          {Prop::Interval, "interval"}}};

}  // namespace

std::string_view propertyName(Prop prop) {
  const auto* found =
      std::find_if(names.begin(), names.end(), [&](const PropName& n) { return n.prop == prop; });
  return found == names.end() ? std::string_view{} : found->name;
}

std::optional<Prop> propertyByName(std::string_view name) {
  const auto* found =
      std::find_if(names.begin(), names.end(), [&](const PropName& n) { return n.name == name; });
  if (found == names.end()) return std::nullopt;
  return found->prop;
}

std::string toText(const std::string& value) {
  return value;
}
std::string toText(int value) {
  return std::to_string(value);
}
std::string toText(bool value) {
  return value ? "1" : "0";
}
std::string toText(const Colour& value) {
  if (value.automatic) return {};
  return std::to_string(value.red) + "," + std::to_string(value.green) + "," + std::to_string(value.blue);
}

void fromText(std::string_view text, std::string& value) {
  value = text;
}

void fromText(std::string_view text, int& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size()) {
    throw std::invalid_argument("\"" + std::string(text) + "\" is no whole number");
  }
}

void fromText(std::string_view text, bool& value) {
  if (text != "0" && text != "1")
    throw std::invalid_argument("\"" + std::string(text) + "\" is neither 0 nor 1");
  value = text == "1";
}

void fromText(std::string_view text, Colour& value) {
  const std::vector<std::string> parts = split(text, ',');
  if (parts.size() != 3) throw std::invalid_argument("\"" + std::string(text) + "\" is no R,G,B");
  std::array<int, 3> channels{};
  for (std::size_t i = 0; i < 3; ++i) {
    fromText(parts[i], channels.at(i));
    if (channels.at(i) < 0 || channels.at(i) > 255)
      throw std::invalid_argument("a channel goes from 0 to 255");
  }
  value = Colour::rgb(static_cast<std::uint8_t>(channels[0]), static_cast<std::uint8_t>(channels[1]),
                      static_cast<std::uint8_t>(channels[2]));
}

PropertyBase::PropertyBase(Component& owner, Prop id) : owner_(owner), id_(id) {
  owner.enrol(*this);
}

void PropertyBase::changed() {
  wakeTimers();
  owner_.propertyChanged(id_);
}

}  // namespace platform
