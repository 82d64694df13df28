// A bar that the rider fills with the mouse: a picture box that keeps what is painted into it.
#pragma once

#include <vector>

#include "platform/control.h"

namespace platform {

class PaintBar final : public Control {
 public:
  // Where the mouse is, in the bar's own scale, from 0 to `span` across and to 1 upwards.
  struct Pointer {
    double x = 0;
    double y = 0;
    bool left = true;  // the left button is down
  };

  PaintBar(Form& form, std::string name, const Design& design = {})
      : Control(form, ControlKind::Image, std::move(name), design) {}

  double span = 1;
  std::vector<Colour> strips;  // what is painted, a pixel each, from the left or from below

  Event<Pointer> mouseDown;
  Event<Pointer> mouseMove;
  Event<Pointer> mouseUp;
};

}  // namespace platform
