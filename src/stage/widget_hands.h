// The rider's hands on the real widgets: sends mouse and keyboard events, as the window system would. Throws
// console::CommandError if the form shows a control but the window does not let a rider touch it.
#pragma once

#include <QWidget>
#include <optional>

#include "console/direct_hands.h"
#include "console/rider_hands.h"
#include "desktop/windows.h"

class QAction;

namespace widgets {
class GridTable;
}

namespace stage {

class WidgetHands final : public console::RiderHands {
 public:
  // To be called before the first command.
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
  void select(platform::Grid& grid, const std::vector<int>& rows) override;
  void key(platform::Control& target, const std::string& key) override;
  void leave(platform::ComboBox& box) override;

 private:
  // The widget of a control, on its page brought up to date; null if none has its name.
  [[nodiscard]] QWidget* find(const platform::Component& component) const;
  // True if a rider can touch the widget at that point, false if another part of the page covers it by
  // design. Throws CommandError in all other cases.
  [[nodiscard]] bool canTouch(const platform::Component& component, const QWidget& widget,
                              const QPoint& at) const;
  // The widget that a rider would touch; null if the logic is worked instead, because no widget is meant to
  // show the control or it is covered by design.
  template <class Widget>
  [[nodiscard]] Widget* reach(const platform::Component& component) const;
  // The same for a cell, which is scrolled into view: its place in the viewport.
  [[nodiscard]] std::optional<QPoint> reachCell(widgets::GridTable& table, int row, int column) const;
  // The entry of a menu; throws CommandError if the rider cannot choose it.
  [[nodiscard]] QAction& entry(const platform::Component& item) const;

  desktop::Windows* windows_ = nullptr;
  console::DirectHands logic_;
};

}  // namespace stage
