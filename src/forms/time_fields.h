// A time shown in three controls: hours, minutes, seconds.
#pragma once

#include <array>
#include <string>

#include "platform/text.h"

namespace forms {

// The three pairs of digits of "hh:nn:ss".
[[nodiscard]] inline std::array<std::string, 3> timeParts(const std::string& time) {
  return {platform::left(time, 2), platform::mid(time, 4, 2), platform::mid(time, 7, 2)};
}

// "hh:nn:ss" of three boxes, whatever was typed into them.
[[nodiscard]] std::string timeInBoxes(const auto& boxes) {
  return boxes[0]->text.get() + ":" + boxes[1]->text.get() + ":" + boxes[2]->text.get();
}

void showInBoxes(const auto& boxes, const std::array<std::string, 3>& parts) {
  for (std::size_t i = 0; i < parts.size(); ++i) boxes.at(i)->text = parts.at(i);
}

}  // namespace forms
