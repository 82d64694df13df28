// Binds the widgets of a page to the controls of its form: a widget shows the control of the same name, and
// the rider's actions on the widget raise the control's events.
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "desktop/control_display.h"
#include "desktop/form_menus.h"
#include "desktop/rider_input.h"

namespace desktop {

// A line for each fault that keeps a page from being bound: a control without a widget, a name used twice, a
// widget of a class that cannot show its control.
[[nodiscard]] QStringList bindingFaults(const platform::Form& form, const QWidget& page);

class Binder final {
 public:
  explicit Binder(platform::EventLoop& loop) : input_(loop), menus_(input_) {}

  // Throws std::logic_error with the page's faults, if any.
  void bind(platform::Form& form, QWidget& page);
  // Whether the widget is bound to a control.
  [[nodiscard]] bool shows(const QWidget& widget) const { return input_.knows(widget); }
  // Shows the controls' colours again, after a change of theme.
  void recolour();
  // Runs an action of the rider: at once, or after the sound that blocks the loop.
  void run(std::function<void()> action) { input_.run(std::move(action)); }
  // Presses the widget for a key that Qt does not take for a press; false if the key means none here, either.
  bool pressByKey(QWidget& widget, int key) { return input_.pressByKey(widget, key); }
  // `told` is called for each menu that the logic opens.
  void onPopUp(std::function<void(const platform::MenuItem&)> told) { menus_.onPopUp(std::move(told)); }

 private:
  void tie(platform::Control& control, QWidget& widget);

  ControlDisplay display_;
  RiderInput input_;
  FormMenus menus_;
  std::vector<std::pair<const platform::Control*, QPointer<QWidget>>> tied_;
};

}  // namespace desktop
