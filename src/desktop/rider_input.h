// Turns the rider's actions on a widget into the events of its control. It listens only to what a person
// causes, so that a change made by code never comes back as an event.
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
  // For a button without a control.
  void listen(QAbstractButton& button, std::function<void()> pressed);
  // Whether the widget is listened to for a control.
  [[nodiscard]] bool knows(const QWidget& widget) const { return controls_.contains(&widget); }
  // Runs an action of the rider: at once, or after the sound that blocks the loop.
  void run(std::function<void()> action) { loop_.whenFree(std::move(action)); }
  // Presses the widget for a key that Qt does not take for a press; false if the key means none here, either.
  bool pressByKey(QWidget& widget, int key);
  // The widget that the rider pressed last; null if it has been deleted.
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
  // These return true if the widget shall not get the event any more.
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
