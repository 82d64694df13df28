// Ties the widgets of a page to the controls of its form: a widget shows the control that bears its name, and
// what a person does to the widget raises the control's event. Only signals that a person causes are listened
// to, so that a write from code never comes back as an event.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "platform/controls.h"
#include "platform/event_loop.h"
#include "platform/menu.h"

class QAbstractButton;
class QAbstractSlider;
class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QMenu;
class QRadioButton;

namespace desktop {

// What keeps a page from being bound: controls without a widget, names that stand twice, widgets of a kind
// that cannot show their control.
[[nodiscard]] QStringList bindingFaults(const platform::Form& form, const QWidget& page);

class Binder final : public QObject {
  Q_OBJECT
 public:
  explicit Binder(platform::EventLoop& loop, QObject* parent = nullptr);

  // Throws std::logic_error with the page's faults.
  void bind(platform::Form& form, QWidget& page);
  // Whether the widget is a control's.
  [[nodiscard]] bool shows(const QWidget& widget) const { return controls_.contains(&widget); }
  // Shows the colours anew, after a change of theme.
  void recolour();
  // Runs what the rider caused: at once, or, while a sound blocks the loop, behind it.
  void run(std::function<void()> action);
  // Presses what has the keyboard by a key that its own widget does not take; false where none is meant.
  bool pressByKey(QWidget& widget, int key);
  // Told of each menu that the logic opens.
  void onPopUp(std::function<void(const platform::MenuItem&)> told) { poppedUp_ = std::move(told); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void tie(platform::Control& control, QWidget& widget);
  void tieButton(platform::Control& control, QAbstractButton& button);
  void tieCheckBox(platform::CheckBox& box, QCheckBox& widget);
  void tieOption(platform::Option& option, QRadioButton& widget);
  void tieComboBox(platform::ComboBox& box, QComboBox& widget);
  void leaveBox(platform::ComboBox& box, const QComboBox& widget, Qt::FocusReason reason);
  void tieTextBox(platform::TextBox& box, QLineEdit& widget);
  void tieScrollBar(platform::ScrollBar& bar, QAbstractSlider& widget);
  void tieMenus(platform::Form& form, QWidget& page);
  void tieEntry(platform::MenuItem& item, QAction& action);
  void tieOpeners(platform::MenuItem& item, QMenu& menu, QWidget& page);
  void show(const platform::Component& component, platform::Prop prop, QWidget& widget);
  void popUp(QMenu& menu);

  platform::EventLoop& loop_;
  QHash<const QObject*, platform::Control*> controls_;
  QHash<const platform::MenuItem*, QMenu*> menus_;
  QPointer<QWidget> pressed_;
  QPointer<QWidget> closedInUse_;  // had the keyboard when it was closed
  bool held_ = false;              // a mouse button is down
  bool typed_ = false;             // what was done last was done by a key
  QPointF pointer_;
  std::function<void(const platform::MenuItem&)> poppedUp_;
};

}  // namespace desktop
