// Shows the properties of controls on the widgets that stand for them.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/control.h"

namespace desktop {

class ControlDisplay {
 public:
  // The widget must be of a class that can show the control.
  void show(const platform::Control& control, platform::Prop prop, QWidget& widget);
  // Whether a widget of this class can stand for a control of this kind.
  [[nodiscard]] static bool canShow(const QWidget& widget, platform::ControlKind kind);

 private:
  QPointer<QWidget> disabledInUse_;  // the widget that had the keyboard when it was disabled
};

}  // namespace desktop
