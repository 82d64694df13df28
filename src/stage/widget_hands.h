// The rider's hands on the real widgets: mouse and keyboard events, as the window system would send them.
#pragma once

#include <QWidget>

#include "console/direct_hands.h"
#include "console/rider_hands.h"
#include "desktop/windows.h"

namespace stage {

class WidgetHands final : public console::RiderHands {
 public:
  // To be called before the first touch.
  void attach(desktop::Windows& windows) { windows_ = &windows; }

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
  void key(platform::Control& target, const std::string& key) override;
  void leave(platform::ComboBox& box) override;

 private:
  // The widget that shows a control; null where none does, or where the window has no place for it just now.
  [[nodiscard]] QWidget* touchable(const platform::Component& component) const;

  desktop::Windows* windows_ = nullptr;
  console::DirectHands direct_;  // for what has no widget to touch
};

}  // namespace stage
