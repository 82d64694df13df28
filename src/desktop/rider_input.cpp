#include "desktop/rider_input.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRadioButton>
#include <utility>

#include "widgets/qt_text.h"

namespace desktop {

using widgets::fromQt;

namespace {

using platform::Control;
using platform::ControlKind;

bool isEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// Whether the widget is a text or a picture that can be pressed, not just the label of another control.
bool isPressableDrawing(const Control& control, const QWidget& widget) {
  const ControlKind kind = control.kind();
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return (kind == ControlKind::Label || kind == ControlKind::Image || kind == ControlKind::Frame) &&
         qobject_cast<const QAbstractButton*>(&widget) == nullptr &&
         (label == nullptr || label->buddy() == nullptr) && control.click.handled();
}

}  // namespace

void RiderInput::listen(Control& control, QWidget& widget) {
  controls_.insert(&widget, &control);
  widget.setMouseTracking(true);
  widget.installEventFilter(this);
  // A list's mouse events go to its viewport; without them its menu would appear at the last button.
  if (auto* list = qobject_cast<QAbstractScrollArea*>(&widget)) list->viewport()->installEventFilter(this);
  if (isPressableDrawing(control, widget)) widget.setFocusPolicy(Qt::TabFocus);
  switch (control.kind()) {
    case ControlKind::CheckBox:
      return listenToCheckBox(static_cast<platform::CheckBox&>(control), static_cast<QCheckBox&>(widget));
    case ControlKind::Option:
      return listenToOption(static_cast<platform::Option&>(control), static_cast<QRadioButton&>(widget));
    case ControlKind::ComboBox:
      return listenToComboBox(static_cast<platform::ComboBox&>(control), static_cast<QComboBox&>(widget));
    case ControlKind::TextBox:
      return listenToTextBox(static_cast<platform::TextBox&>(control), static_cast<QLineEdit&>(widget));
    case ControlKind::ScrollBar:
      return listenToScrollBar(static_cast<platform::ScrollBar&>(control),
                               static_cast<QAbstractSlider&>(widget));
    default:
      if (auto* button = qobject_cast<QAbstractButton*>(&widget)) listenToButton(control, *button);
  }
}

void RiderInput::listen(QAbstractButton& button, std::function<void()> pressed) {
  button.installEventFilter(this);
  connect(&button, &QAbstractButton::clicked, this, [this, &button, pressed = std::move(pressed)] {
    lastPressed_ = &button;
    pressed();
  });
}

void RiderInput::listenToButton(Control& control, QAbstractButton& button) {
  connect(&button, &QAbstractButton::clicked, this, [this, &control, &button] {
    lastPressed_ = &button;
    run([&control] { control.click(); });
  });
}

void RiderInput::listenToCheckBox(platform::CheckBox& box, QCheckBox& widget) {
  connect(&widget, &QCheckBox::clicked, this, [this, &box, &widget] {
    widget.setTristate(false);
    run([&box] { box.toggle(); });
  });
}

void RiderInput::listenToOption(platform::Option& option, QRadioButton& widget) {
  connect(&widget, &QRadioButton::clicked, this, [this, &option, &widget] {
    widget.setChecked(true);
    run([&option] { option.value = true; });
  });
}

void RiderInput::listenToComboBox(platform::ComboBox& box, QComboBox& widget) {
  connect(&widget, &QComboBox::activated, this,
          [this, &box](int line) { run([&box, line] { box.pick(line); }); });
  connect(widget.lineEdit(), &QLineEdit::textEdited, this,
          [this, &box](const QString& typed) { run([&box, text = fromQt(typed)] { box.type(text); }); });
  connect(widget.lineEdit(), &QLineEdit::returnPressed, this, [this, &box] { run([&box] { box.enter(); }); });
}

void RiderInput::listenToTextBox(platform::TextBox& box, QLineEdit& widget) {
  connect(&widget, &QLineEdit::textEdited, this,
          [this, &box](const QString& typed) { run([&box, text = fromQt(typed)] { box.text = text; }); });
  connect(&widget, &QLineEdit::returnPressed, this, [this, &box] { run([&box] { box.enter(); }); });
}

void RiderInput::listenToScrollBar(platform::ScrollBar& bar, QAbstractSlider& widget) {
  connect(&widget, &QAbstractSlider::actionTriggered, this,
          [this, &bar, &widget] { run([&bar, value = widget.sliderPosition()] { bar.scrollTo(value); }); });
}

// Enter presses a button or a drawing; so does the space bar, which Qt handles for a button alone.
bool RiderInput::pressByKey(QWidget& widget, int key) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && isEnter(key)) {
    button->click();
    return true;
  }
  Control* control = controls_.value(&widget);
  if (control == nullptr || !isPressableDrawing(*control, widget)) return false;
  if (!isEnter(key) && key != Qt::Key_Space) return false;
  run([control] { control->click(); });
  return true;
}

bool RiderInput::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) buttonDown_ = false;
  if (event->type() == QEvent::MouseButtonPress) byKeyboard_ = false;
  if (event->type() == QEvent::KeyPress) byKeyboard_ = true;
  auto& widget = *static_cast<QWidget*>(watched);
  Control* control = controls_.value(watched);
  return control == nullptr ? filterOther(widget, *event) : filterControl(*control, widget, *event);
}

// The viewport of a list, or a button without a control.
bool RiderInput::filterOther(QWidget& widget, QEvent& event) {
  if (event.type() == QEvent::MouseButtonPress && !buttonDown_) lastPressed_ = widget.parentWidget();
  return event.type() == QEvent::KeyPress && qobject_cast<QAbstractButton*>(&widget) != nullptr &&
         pressByKey(widget, static_cast<QKeyEvent&>(event).key());
}

bool RiderInput::filterControl(Control& control, QWidget& widget, QEvent& event) {
  const bool isBox = control.kind() == ControlKind::ComboBox;
  switch (event.type()) {
    case QEvent::MouseMove:
      onMove(control, static_cast<QMouseEvent&>(event));
      return false;
    case QEvent::KeyPress:
      return onKey(control, widget, static_cast<QKeyEvent&>(event));
    case QEvent::MouseButtonPress:
      return onPress(control, widget, static_cast<QMouseEvent&>(event));
    case QEvent::ContextMenu:
      return onContextMenu(control, widget, static_cast<QContextMenuEvent&>(event));
    case QEvent::MouseButtonRelease:
      onRelease(control, widget, static_cast<QMouseEvent&>(event));
      return false;
    case QEvent::FocusOut:
      if (isBox) {
        onBoxLeft(static_cast<platform::ComboBox&>(control), static_cast<QComboBox&>(widget),
                  static_cast<QFocusEvent&>(event).reason());
      }
      return false;
    case QEvent::Wheel:
      // A wheel passing over a closed box must not change it, but may scroll the widget around it.
      if (isBox) event.ignore();
      return isBox;
    case QEvent::MouseButtonDblClick:
      if (control.doubleClick.handled()) run([&control] { control.doubleClick(); });
      return false;
    default:
      return false;
  }
}

void RiderInput::onMove(Control& control, const QMouseEvent& event) {
  // Qt also sends a move to a widget that appears under a resting pointer; that is no action of the rider.
  const QPointF at = event.globalPosition();
  if (at != pointer_ && control.hover.handled()) run([&control] { control.hover(); });
  pointer_ = at;
}

// Enter in the box over a cell must not reach the list as well, which would open the cell again.
bool RiderInput::onKey(const Control& control, QWidget& widget, QKeyEvent& event) {
  if (pressByKey(widget, event.key())) return true;
  if (control.kind() != ControlKind::ComboBox || !isEnter(event.key())) return false;
  static_cast<QComboBox&>(widget).lineEdit()->event(&event);
  event.accept();
  return true;
}

bool RiderInput::onPress(Control& control, QWidget& widget, const QMouseEvent& event) {
  // Qt passes a press on to the widgets around; the innermost one counts.
  if (!buttonDown_ || lastPressed_ == nullptr || !widget.isAncestorOf(lastPressed_)) lastPressed_ = &widget;
  buttonDown_ = true;
  if (event.button() != Qt::RightButton || !control.alternate.handled()) return false;
  run([&control] { control.alternate(); });
  return true;
}

bool RiderInput::onContextMenu(Control& control, QWidget& widget, const QContextMenuEvent& event) {
  // The right button has raised the event already when it was pressed.
  if (event.reason() != QContextMenuEvent::Keyboard || !control.alternate.handled()) return false;
  lastPressed_ = &widget;
  run([&control] { control.alternate(); });
  return true;
}

void RiderInput::onRelease(Control& control, const QWidget& widget, const QMouseEvent& event) {
  const bool hasOwnSignal = qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                            control.kind() == ControlKind::Grid || control.kind() == ControlKind::ComboBox;
  if (!hasOwnSignal && event.button() == Qt::LeftButton && lastPressed_ == &widget &&
      control.click.handled()) {
    run([&control] { control.click(); });
  }
}

// A mouse press elsewhere may give the box another meaning, so the box is validated before that press.
// Otherwise validation is queued: a handler that hides the box takes its keyboard, too, and must end first.
void RiderInput::onBoxLeft(platform::ComboBox& box, const QComboBox& widget, Qt::FocusReason reason) {
  const bool elsewhere = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
  if (!elsewhere || widget.view()->isVisible()) return;
  const auto validate = [this, &box] { run([&box] { box.validate(); }); };
  if (reason == Qt::MouseFocusReason) {
    validate();
  } else {
    QMetaObject::invokeMethod(this, validate, Qt::QueuedConnection);
  }
}

}  // namespace desktop
