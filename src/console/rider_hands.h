// The rider's hands: how his actions reach a control, directly or through a window's widgets. Whether he can
// touch the control, and whether the action suits its kind, has been checked before. Throws CommandError
// where a window does not let him touch what its form shows.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/menu.h"

namespace console {

class RiderHands {
 public:
  virtual ~RiderHands() = default;

  virtual void press(platform::Component& target) = 0;  // anything that is clicked, a menu entry too
  virtual void doublePress(platform::Control& target) = 0;
  virtual void hover(platform::Control& target) = 0;
  virtual void tick(platform::Control& box, int value) = 0;                // check box or option
  virtual void pick(platform::Control& list, int line) = 0;                // drop-down list or file list
  virtual void type(platform::Control& box, const std::string& text) = 0;  // drop-down list or text box
  virtual void scroll(platform::ScrollBar& bar, int value) = 0;
  virtual void cell(platform::Grid& grid, int row, int column, platform::MouseButton button) = 0;
  virtual void hoverCell(platform::Grid& grid, int row, int column) = 0;
  virtual void checkRow(platform::Grid& grid, int row, bool on) = 0;
  // One row or several, the last of which is then in hand.
  virtual void select(platform::Grid& grid, const std::vector<int>& rows) = 0;
  virtual void key(platform::Control& target, const std::string& key) = 0;
  // The keyboard leaves a drop-down list that was typed or picked in.
  virtual void leave(platform::ComboBox& box) = 0;
};

}  // namespace console
