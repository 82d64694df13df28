// What the rider does to a widget raises the events of its control. Only what a person causes is listened to,
// so that a write from code never comes back as an event.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/controls.h"
#include "platform/event_loop.h"

class QAbstractButton;
class QAbstractSlider;
class QCheckBox;
class QComboBox;
class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;
class QRadioButton;

namespace desktop {

class RiderInput final : public QObject {
  Q_OBJECT
 public:
  explicit RiderInput(platform::EventLoop& loop) : loop_(loop) {}

  // The widget must be of a class that can show the control.
  void listen(platform::Control& control, QWidget& widget);
  // A button that stands for no control.
  void listen(QAbstractButton& button, std::function<void()> pressed);
  // Whether the widget is listened to for a control.
  [[nodiscard]] bool knows(const QWidget& widget) const { return controls_.contains(&widget); }
  // Runs what the rider caused: at once, or, while a sound blocks the loop, after it.
  void run(std::function<void()> action) { loop_.whenFree(std::move(action)); }
  // Presses the widget by a key that it does not take by itself; false where the key means nothing there.
  bool pressByKey(QWidget& widget, int key);
  // What the rider pressed last; null where it is gone.
  [[nodiscard]] QWidget* lastPressed() const { return lastPressed_; }
  // Whether he used the keyboard last, not the mouse.
  [[nodiscard]] bool byKeyboard() const { return byKeyboard_; }

 private:
  void listenToButton(platform::Control& control, QAbstractButton& button);
  void listenToCheckBox(platform::CheckBox& box, QCheckBox& widget);
  void listenToOption(platform::Option& option, QRadioButton& widget);
  void listenToComboBox(platform::ComboBox& box, QComboBox& widget);
  void listenToTextBox(platform::TextBox& box, QLineEdit& widget);
  void listenToScrollBar(platform::ScrollBar& bar, QAbstractSlider& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;
  bool filterOther(QWidget& widget, QEvent& event);
  bool filterControl(platform::Control& control, QWidget& widget, QEvent& event);
  // These return whether the event ends there.
  bool onKey(const platform::Control& control, QWidget& widget, QKeyEvent& event);
  bool onPress(platform::Control& control, QWidget& widget, const QMouseEvent& event);
  bool onContextMenu(platform::Control& control, QWidget& widget, const QContextMenuEvent& event);
  void onMove(platform::Control& control, const QMouseEvent& event);
  void onRelease(platform::Control& control, const QWidget& widget, const QMouseEvent& event);
  void onBoxLeft(platform::ComboBox& box, const QComboBox& widget, Qt::FocusReason reason);

  platform::EventLoop& loop_;
  QHash<const QObject*, platform::Control*> controls_;
  QPointer<QWidget> lastPressed_;
  bool buttonDown_ = false;  // of the mouse
  bool byKeyboard_ = false;
  QPointF pointer_;
};

}  // namespace desktop
