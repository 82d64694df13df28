// Menus: a bar's or a pop-up's entries, each of which may hold a sub-menu.
#pragma once

#include <string>

#include "platform/form.h"

namespace platform {

class MenuItem;

struct MenuDesign {
  MenuItem* in = nullptr;
  bool visible = true;
  bool enabled = true;
};

// An entry, or, with entries that name it as their parent, a menu.
class MenuItem final : public Component {
 public:
  MenuItem(Form& form, std::string name, std::string caption_ = {}, const MenuDesign& design = {})
      : Component(&form, ControlKind::MenuItem, std::move(name)),
        caption(*this, Prop::Caption, std::move(caption_)),
        visible(*this, Prop::Visible, design.visible),
        enabled(*this, Prop::Enabled, design.enabled),
        parent_(design.in) {}

  Property<std::string> caption;
  Property<bool> visible;
  Property<bool> enabled;
  Event<> click;
  // Told to the front: open this menu as a pop-up at the pointer.
  Event<> popUp;

  [[nodiscard]] MenuItem* parent() const { return parent_; }
  // The menu at the root of this entry.
  [[nodiscard]] const MenuItem& root() const { return parent_ == nullptr ? *this : parent_->root(); }

 private:
  MenuItem* parent_;
};

}  // namespace platform
