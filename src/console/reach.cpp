#include "console/reach.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "platform/control.h"

namespace console {
namespace {

// The menus that open at a click into another control; those of the main screen can always be reached.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> popUps{{
    {"CreerCycle", "mnSupprimer"},
    {"EnrUneAnnonce", "mnEcout"},
    {"EnrUneAnnonce", "mnsupress"},
}};

bool isPopUp(const platform::MenuItem& root) {
  return std::any_of(popUps.begin(), popUps.end(), [&](const auto& menu) {
    return menu.first == root.form().name() && menu.second == root.name();
  });
}

Reach reachOfEntry(const platform::MenuItem& entry, const platform::MenuItem* popUp) {
  if (!entry.form().visible) return Reach::Hidden;
  if (isPopUp(entry.root()) && &entry.root() != popUp) return Reach::Hidden;
  bool enabled = true;
  for (const platform::MenuItem* item = &entry; item != nullptr; item = item->parent()) {
    if (!item->visible) return Reach::Hidden;
    enabled = enabled && item->enabled;
  }
  return enabled ? Reach::Open : Reach::Disabled;
}

}  // namespace

Reach reachOf(const platform::Component& component, const platform::MenuItem* popUp) {
  if (const auto* entry = dynamic_cast<const platform::MenuItem*>(&component)) {
    return reachOfEntry(*entry, popUp);
  }
  const auto* control = dynamic_cast<const platform::Control*>(&component);
  if (control == nullptr || !platform::canBeSeen(*control)) return Reach::Hidden;
  return platform::isEnabled(*control) ? Reach::Open : Reach::Disabled;
}

}  // namespace console
