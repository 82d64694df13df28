// What the rider can see and touch: the properties and events common to all visible controls.
#pragma once

#include <string>

#include "platform/form.h"

namespace platform {

class Frame;

// A control as its form declares it.
struct Design {
  Frame* in = nullptr;  // the container; none: the form itself
  bool visible = true;
  bool enabled = true;
  std::string tip = {};
};

class Control : public Component {
 public:
  Property<bool> visible;
  Property<bool> enabled;
  Property<std::string> toolTip;
  Property<Colour> colour{*this, Prop::Colour, Colour{}};
  Property<bool> bold{*this, Prop::Bold, false};
  Property<int> size{*this, Prop::Size, 0};  // font size in points; 0: the front's own
  Property<int> top{*this, Prop::Top, 0};
  Property<int> left{*this, Prop::Left, 0};
  Property<int> width{*this, Prop::Width, 0};
  Property<int> height{*this, Prop::Height, 0};

  Event<> click;
  Event<> doubleClick;
  Event<> hover;      // the pointer moves over the control
  Event<> alternate;  // the other mouse button

  [[nodiscard]] Frame* container() const { return container_; }
  [[nodiscard]] const Event<>* event(EventId id) const override {
    return id == EventId::Click ? &click : nullptr;
  }

 protected:
  Control(Form& form, ControlKind kind, std::string name, const Design& design)
      : Component(&form, kind, std::move(name)),
        visible(*this, Prop::Visible, design.visible),
        enabled(*this, Prop::Enabled, design.enabled),
        toolTip(*this, Prop::ToolTip, design.tip),
        container_(design.in) {}

 private:
  Frame* container_;
};

// Whether the rider can see it: itself, every container around it and its form are visible.
[[nodiscard]] bool canBeSeen(const Control& control);
// Whether it reacts to the rider: itself and every container around it are enabled.
[[nodiscard]] bool isEnabled(const Control& control);

}  // namespace platform
