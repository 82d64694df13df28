// The parts of a page that another part covers or replaces, such as the buttons below the ride's panel. The
// form still calls their controls visible.
#pragma once

#include <optional>
#include <string_view>

#include "platform/form.h"

namespace desktop {

// The control that covers a part of the form's page just now; none if nothing does.
[[nodiscard]] std::optional<std::string_view> coverOf(const platform::Form& form, std::string_view part);

}  // namespace desktop
