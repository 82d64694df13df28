// Hands that work the controls directly, without a window.
#pragma once

#include "console/rider_hands.h"

namespace console {

class DirectHands final : public RiderHands {
 public:
  void press(platform::Component& target) override;
  void doublePress(platform::Control& target) override;
  void hover(platform::Control& target) override;
  void tick(platform::Control& box, int value) override;
  void pick(platform::Control& list, int line) override;
  void type(platform::Control& box, const std::string& text) override;
  void scroll(platform::ScrollBar& bar, int value) override;
  void cell(platform::Grid& grid, int row, int column, platform::MouseButton button) override;
  void hoverCell(platform::Grid& grid, int row, int column) override;
  void checkRow(platform::Grid& grid, int row, bool on) override;
  void select(platform::Grid& grid, const std::vector<int>& rows) override;
  void key(platform::Control& target, const std::string& key) override;
  void leave(platform::ComboBox& box) override;
};

}  // namespace console
