// Showing and hiding controls in groups.
#pragma once

#include <initializer_list>

#include "platform/control.h"

namespace forms {

inline void show(std::initializer_list<platform::Control*> controls) {
  for (platform::Control* control : controls) control->visible = true;
}

inline void hide(std::initializer_list<platform::Control*> controls) {
  for (platform::Control* control : controls) control->visible = false;
}

void show(const auto& group) {
  for (platform::Control* control : group) control->visible = true;
}

void hide(const auto& group) {
  for (platform::Control* control : group) control->visible = false;
}

}  // namespace forms
