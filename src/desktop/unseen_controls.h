// The controls of the forms that no widget shows, each with the reason. Timers and menus need no entry.
#pragma once

#include <span>
#include <string_view>

#include "platform/component.h"

namespace desktop {

struct UnseenControl {
  std::string_view form;
  std::string_view control;
  std::string_view reason;
};

[[nodiscard]] std::span<const UnseenControl> unseenControls();
[[nodiscard]] bool isUnseen(const platform::Component& component);

}  // namespace desktop
