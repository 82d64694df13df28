// The parts of a page that another part lies over or takes the place of, such as the buttons below the ride's
// panel. The form still counts their controls among the visible ones.
#pragma once

#include <optional>
#include <string_view>

#include "platform/form.h"

namespace desktop {

// The control that covers a page's part just now; none where nothing does, or where the page has no such
// part.
[[nodiscard]] std::optional<std::string_view> coverOf(const platform::Form& form, std::string_view part);

}  // namespace desktop
