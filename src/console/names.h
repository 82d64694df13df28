// Addresses such as MainForm.MyButton1.caption, and what they lead to.
#pragma once

#include <string>

#include "forms/screens.h"
#include "platform/component.h"
#include "platform/grid.h"

namespace console {

// These throw CommandError, with the nearest names, where there is no such thing.
[[nodiscard]] platform::Form& findForm(forms::Screens& screens, const std::string& name);
[[nodiscard]] platform::Component& findControl(forms::Screens& screens, const std::string& address);
[[nodiscard]] platform::Grid& findGrid(forms::Screens& screens, const std::string& address);

struct PropertyAddress {
  platform::Component* component = nullptr;
  platform::PropertyBase* property = nullptr;  // null where the address names none
};
// FORM.CONTROL.PROP, FORM.CONTROL, or FORM.PROP for a property of the form itself.
[[nodiscard]] PropertyAddress findProperty(forms::Screens& screens, const std::string& address);

}  // namespace console
