// Ties the widgets of a page to the controls of its form: a widget shows the control that bears its name, and
// what a person does to the widget raises the control's events.
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

// What keeps a page from being bound: controls without a widget, names that stand twice, widgets of a kind
// that cannot show their control.
[[nodiscard]] QStringList bindingFaults(const platform::Form& form, const QWidget& page);

class Binder final {
 public:
  explicit Binder(platform::EventLoop& loop) : input_(loop), menus_(input_) {}

  // Throws std::logic_error with the page's faults.
  void bind(platform::Form& form, QWidget& page);
  // Whether the widget is a control's.
  [[nodiscard]] bool shows(const QWidget& widget) const { return input_.knows(widget); }
  // Shows the colours anew, after a change of theme.
  void recolour();
  // Runs what the rider caused: at once, or, while a sound blocks the loop, after it.
  void run(std::function<void()> action) { input_.run(std::move(action)); }
  // Presses the widget by a key that it does not take by itself; false where the key means nothing there.
  bool pressByKey(QWidget& widget, int key) { return input_.pressByKey(widget, key); }
  // Told of each menu that the logic opens.
  void onPopUp(std::function<void(const platform::MenuItem&)> told) { menus_.onPopUp(std::move(told)); }

 private:
  void tie(platform::Control& control, QWidget& widget);

  ControlDisplay display_;
  RiderInput input_;
  FormMenus menus_;
  std::vector<std::pair<const platform::Control*, QPointer<QWidget>>> tied_;
};

}  // namespace desktop
