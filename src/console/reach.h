// What a rider can touch: only what he can see and what is enabled.
#pragma once

#include "platform/component.h"
#include "platform/menu.h"

namespace console {

enum class Reach { Open, Hidden, Disabled };

// A menu entry can be seen while its menu is open: the menus of a form's bar always, a pop-up only where it
// is `popUp`, the root of the one that is open.
[[nodiscard]] Reach reachOf(const platform::Component& component, const platform::MenuItem* popUp);

}  // namespace console
