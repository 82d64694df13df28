#include "desktop/binder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "desktop/keyboard_focus.h"
#include "desktop/unseen_controls.h"
#include "widgets/grid_table.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace desktop {

using widgets::dp;
using widgets::fromQt;
using widgets::GridTable;
using widgets::onScreen;
using widgets::toQt;

namespace {

using platform::Component;
using platform::Control;
using platform::ControlKind;
using platform::Prop;

bool unseen(const Component& component) {
  const auto table = unseenControls();
  return std::any_of(table.begin(), table.end(), [&](const UnseenControl& row) {
    return row.form == component.form().name() && row.control == component.name();
  });
}

// Whether a widget of this class can stand for a control of this kind.
bool canShow(const QWidget& widget, ControlKind kind) {
  switch (kind) {
    case ControlKind::Button:
      return qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    case ControlKind::CheckBox:
      return qobject_cast<const QCheckBox*>(&widget) != nullptr;
    case ControlKind::Option:
      return qobject_cast<const QRadioButton*>(&widget) != nullptr;
    case ControlKind::ComboBox:
      return qobject_cast<const QComboBox*>(&widget) != nullptr;
    case ControlKind::TextBox:
      return qobject_cast<const QLineEdit*>(&widget) != nullptr;
    case ControlKind::ScrollBar:
      return qobject_cast<const QAbstractSlider*>(&widget) != nullptr;
    case ControlKind::ProgressBar:
      return qobject_cast<const QProgressBar*>(&widget) != nullptr;
    case ControlKind::Grid:
      return qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr;
    case ControlKind::Label:
      return widget.metaObject()->indexOfProperty("text") >= 0;
    default:
      return true;
  }
}

// A menu opens from a button of its name or as a pop-up; its entries stand in it.
bool needsNoWidget(const Component& component) {
  return component.kind() == ControlKind::Timer || component.kind() == ControlKind::MenuItem;
}

QList<QWidget*> widgetsNamed(const QWidget& page, const std::string& name) {
  QList<QWidget*> found = page.findChildren<QWidget*>(toQt(name));
  if (page.objectName() == toQt(name)) found.append(const_cast<QWidget*>(&page));
  return found;
}

// A rider's text that looks like markup is none.
QString plainTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

// An ampersand in a text would be taken for a shortcut's mark.
QString plain(QString text, const QWidget& widget) {
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr)
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
  return text;
}

void showCaption(QWidget& widget, const QString& text) {
  auto* elsewhere = widget.findChild<QLabel*>(widget.objectName() + QStringLiteral("Caption"));
  const bool isTextShown = elsewhere == nullptr && widget.metaObject()->indexOfProperty("text") >= 0 &&
                           !widget.property("captionElsewhere").toBool();
  if (elsewhere != nullptr) elsewhere->setText(text);
  if (isTextShown) widget.setProperty("text", plain(text, widget));
  // What only shows a text is called by it anyway; its name says what the text is about.
  const bool onlyShows = isTextShown && qobject_cast<QAbstractButton*>(&widget) == nullptr;
  if (!onlyShows && !text.trimmed().isEmpty()) widget.setAccessibleName(text.trimmed());
}

void showLook(QWidget& widget, const Control& control) {
  QString style;
  if (!control.colour.get().automatic) {
    style += QStringLiteral("color: %1;").arg(onScreen(QGuiApplication::palette(), control.colour).name());
  }
  if (control.bold) style += QStringLiteral("font-weight: 700;");
  widget.setStyleSheet(style);
}

void showCombo(const platform::ComboBox& box, QComboBox& widget, bool relist) {
  const QSignalBlocker quiet(&widget);
  const auto& lines = box.lines();
  if (relist && widget.count() + 1 == static_cast<int>(lines.size()) && widget.count() > 0) {
    widget.addItem(toQt(lines.back()));
  } else if (relist) {
    widget.clear();
    for (const std::string& line : lines) widget.addItem(toQt(line));
  }
  if (widget.currentIndex() != box.index) widget.setCurrentIndex(box.index);
  const QString text = toQt(box.text.get());
  if (widget.currentText() != text) widget.setEditText(text);
}

// A text or a picture that can be pressed, and is no mere label of another control.
bool isPressableDrawing(const Control& control, const QWidget& widget) {
  const ControlKind kind = control.kind();
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return (kind == ControlKind::Label || kind == ControlKind::Image || kind == ControlKind::Frame) &&
         qobject_cast<const QAbstractButton*>(&widget) == nullptr &&
         (label == nullptr || label->buddy() == nullptr) && control.click.handled();
}

}  // namespace

QStringList bindingFaults(const platform::Form& form, const QWidget& page) {
  QStringList faults;
  const auto fault = [&](const Component& component, const QString& what) {
    faults.append(toQt(form.name()) + QLatin1Char('.') + toQt(component.name()) + QStringLiteral(": ") +
                  what);
  };
  for (const Component* component : form.components()) {
    const QList<QWidget*> widgets = widgetsNamed(page, component->name());
    if (widgets.size() > 1) fault(*component, QStringLiteral("stands %1 times").arg(widgets.size()));
    if (needsNoWidget(*component)) continue;
    if (widgets.isEmpty() && !unseen(*component)) fault(*component, QStringLiteral("no widget shows it"));
    if (!widgets.isEmpty() && unseen(*component))
      fault(*component, QStringLiteral("is shown, but listed as unseen"));
    if (!widgets.isEmpty() && !canShow(*widgets.first(), component->kind())) {
      fault(*component, QStringLiteral("a widget of this class cannot show it"));
    }
  }
  return faults;
}

Binder::Binder(platform::EventLoop& loop, QObject* parent) : QObject(parent), loop_(loop) {}

void Binder::run(std::function<void()> action) {
  loop_.whenFree(std::move(action));
}

void Binder::bind(platform::Form& form, QWidget& page) {
  const QStringList faults = bindingFaults(form, page);
  if (!faults.isEmpty()) throw std::logic_error(fromQt(faults.join(QLatin1Char('\n'))));
  for (Component* component : form.components()) {
    auto* control = dynamic_cast<Control*>(component);
    if (control == nullptr) continue;
    const QList<QWidget*> widgets = widgetsNamed(page, component->name());
    if (!widgets.isEmpty()) tie(*control, *widgets.first());
  }
  tieMenus(form, page);
}

void Binder::tie(Control& control, QWidget& widget) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) label->setTextFormat(Qt::PlainText);
  for (const platform::PropertyBase* property : control.properties()) {
    if (property->id() != Prop::Colour && property->id() != Prop::Bold) show(control, property->id(), widget);
  }
  if (!control.colour.get().automatic || control.bold) showLook(widget, control);
  const QPointer<QWidget> shown(&widget);
  control.watch([this, shown](Component& component, Prop prop) {
    if (shown) show(component, prop, *shown);
  });

  controls_.insert(&widget, &control);
  widget.setMouseTracking(true);
  widget.installEventFilter(this);
  // A list takes the mouse in its viewport; a menu that it opens is not the last button's.
  if (auto* list = qobject_cast<QAbstractScrollArea*>(&widget)) list->viewport()->installEventFilter(this);
  if (isPressableDrawing(control, widget)) widget.setFocusPolicy(Qt::TabFocus);
  if (auto* box = dynamic_cast<platform::CheckBox*>(&control)) {
    tieCheckBox(*box, dynamic_cast<QCheckBox&>(widget));
  } else if (auto* option = dynamic_cast<platform::Option*>(&control)) {
    tieOption(*option, dynamic_cast<QRadioButton&>(widget));
  } else if (auto* combo = dynamic_cast<platform::ComboBox*>(&control)) {
    tieComboBox(*combo, dynamic_cast<QComboBox&>(widget));
  } else if (auto* text = dynamic_cast<platform::TextBox*>(&control)) {
    tieTextBox(*text, dynamic_cast<QLineEdit&>(widget));
  } else if (auto* bar = dynamic_cast<platform::ScrollBar*>(&control)) {
    tieScrollBar(*bar, dynamic_cast<QAbstractSlider&>(widget));
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    tieButton(control, *button);
  }
}

void Binder::tieButton(Control& control, QAbstractButton& button) {
  connect(&button, &QAbstractButton::clicked, this, [this, &control, &button] {
    pressed_ = &button;
    run([&control] { control.click(); });
  });
}

void Binder::tieCheckBox(platform::CheckBox& box, QCheckBox& widget) {
  connect(&widget, &QCheckBox::clicked, this, [this, &box, &widget] {
    widget.setTristate(false);
    run([&box] { box.toggle(); });
  });
}

void Binder::tieOption(platform::Option& option, QRadioButton& widget) {
  // Which options exclude one another is the form's affair.
  widget.setAutoExclusive(false);
  connect(&widget, &QRadioButton::clicked, this, [this, &option, &widget] {
    widget.setChecked(true);
    run([&option] { option.value = true; });
  });
}

void Binder::tieComboBox(platform::ComboBox& box, QComboBox& widget) {
  widget.setEditable(true);
  widget.setInsertPolicy(QComboBox::NoInsert);
  widget.setCompleter(nullptr);
  widget.setFocusPolicy(Qt::StrongFocus);  // a wheel that passes over takes nothing
  widget.lineEdit()->setAccessibleName(widget.accessibleName());
  showCombo(box, widget, true);
  connect(&widget, &QComboBox::activated, this,
          [this, &box](int line) { run([&box, line] { box.pick(line); }); });
  connect(widget.lineEdit(), &QLineEdit::textEdited, this,
          [this, &box](const QString& typed) { run([&box, text = fromQt(typed)] { box.type(text); }); });
  connect(widget.lineEdit(), &QLineEdit::returnPressed, this, [this, &box] { run([&box] { box.enter(); }); });
}

// Before what the mouse is pressed for, which may give the box another meaning. Else queued: a box also loses
// the keyboard by being hidden, in the midst of the handler that hides it.
void Binder::leaveBox(platform::ComboBox& box, const QComboBox& widget, Qt::FocusReason reason) {
  const bool elsewhere = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
  if (!elsewhere || widget.view()->isVisible()) return;
  const auto leave = [this, &box] { run([&box] { box.validate(); }); };
  if (reason == Qt::MouseFocusReason) {
    leave();
  } else {
    QMetaObject::invokeMethod(this, leave, Qt::QueuedConnection);
  }
}

void Binder::tieTextBox(platform::TextBox& box, QLineEdit& widget) {
  connect(&widget, &QLineEdit::textEdited, this,
          [this, &box](const QString& typed) { run([&box, text = fromQt(typed)] { box.text = text; }); });
  connect(&widget, &QLineEdit::returnPressed, this, [this, &box] { run([&box] { box.enter(); }); });
}

void Binder::tieScrollBar(platform::ScrollBar& bar, QAbstractSlider& widget) {
  widget.setRange(std::min(bar.first, bar.last), std::max(bar.first, bar.last));
  // A vertical slider has its greater value at the top, a horizontal one at the right.
  widget.setInvertedAppearance((bar.first > bar.last) != (widget.orientation() == Qt::Vertical));
  widget.setValue(bar.value);
  connect(&widget, &QAbstractSlider::actionTriggered, this,
          [this, &bar, &widget] { run([&bar, value = widget.sliderPosition()] { bar.scrollTo(value); }); });
}

void Binder::show(const Component& component, Prop prop, QWidget& widget) {
  const auto& control = static_cast<const Control&>(component);
  switch (prop) {
    case Prop::Visible:
      if (!control.visible) leaveKeyboard(widget);
      widget.setVisible(control.visible);
      break;
    case Prop::Enabled:
      if (!control.enabled && leaveKeyboard(widget)) closedInUse_ = &widget;
      widget.setEnabled(control.enabled);
      if (control.enabled && closedInUse_ == &widget) takeKeyboardBack(*std::exchange(closedInUse_, nullptr));
      break;
    case Prop::Focus:
      widget.setFocus();
      break;
    case Prop::ToolTip:
      widget.setToolTip(plainTip(toQt(control.toolTip.get())));
      if (component.kind() == ControlKind::Image && !control.toolTip.get().empty()) {
        widget.setAccessibleName(toQt(control.toolTip.get()));
      }
      break;
    case Prop::Colour:
    case Prop::Bold:
      showLook(widget, control);
      break;
    case Prop::Size:
      if (widget.metaObject()->indexOfProperty("pointSize") >= 0)
        widget.setProperty("pointSize", control.size.get());
      break;
    case Prop::Caption:
      showCaption(widget, toQt(component.property(prop)->asText()));
      break;
    case Prop::Picture:
      if (!component.property(prop)->asText().empty()) {
        widget.setProperty("picture", toQt(component.property(prop)->asText()));
      }
      break;
    case Prop::Text:
    case Prop::Index:
    case Prop::Lines:
      if (const auto* combo = dynamic_cast<const platform::ComboBox*>(&component)) {
        showCombo(*combo, dynamic_cast<QComboBox&>(widget), prop == Prop::Lines);
      } else if (auto* edit = qobject_cast<QLineEdit*>(&widget); edit != nullptr && prop == Prop::Text) {
        const QString text = toQt(component.property(prop)->asText());
        if (edit->text() != text) edit->setText(text);
      }
      break;
    case Prop::Value:
      if (auto* box = qobject_cast<QCheckBox*>(&widget)) {
        const int value = static_cast<const platform::CheckBox&>(component).value;
        box->setCheckState(value == 0 ? Qt::Unchecked : value == 1 ? Qt::Checked : Qt::PartiallyChecked);
      } else if (auto* option = qobject_cast<QRadioButton*>(&widget)) {
        option->setChecked(static_cast<const platform::Option&>(component).value);
      } else if (auto* slider = qobject_cast<QAbstractSlider*>(&widget)) {
        slider->setValue(static_cast<const platform::ScrollBar&>(component).value);
      } else if (auto* progress = qobject_cast<QProgressBar*>(&widget)) {
        progress->setValue(static_cast<const platform::ProgressBar&>(component).value);
      }
      break;
    default:
      break;
  }
}

void Binder::recolour() {
  for (auto entry = controls_.begin(); entry != controls_.end(); ++entry) {
    auto* widget = qobject_cast<QWidget*>(const_cast<QObject*>(entry.key()));
    if (widget != nullptr && !entry.value()->colour.get().automatic) showLook(*widget, *entry.value());
  }
}

void Binder::tieMenus(platform::Form& form, QWidget& page) {
  const auto holdsOthers = [&form](const platform::MenuItem& item) {
    return std::any_of(form.components().begin(), form.components().end(), [&](const Component* other) {
      const auto* entry = dynamic_cast<const platform::MenuItem*>(other);
      return entry != nullptr && entry->parent() == &item;
    });
  };
  for (Component* component : form.components()) {
    auto* item = dynamic_cast<platform::MenuItem*>(component);
    if (item == nullptr) continue;
    const bool root = item->parent() == nullptr;
    if (holdsOthers(*item)) {
      auto* menu = root ? new QMenu(&page) : menus_.value(item->parent())->addMenu(QString());
      menu->setObjectName(toQt(item->name()));
      menus_.insert(item, menu);
      tieEntry(*item, *menu->menuAction());
      if (root) tieOpeners(*item, *menu, page);
    } else if (!root) {
      QAction* action = menus_.value(item->parent())->addAction(QString());
      action->setObjectName(toQt(item->name()));
      connect(action, &QAction::triggered, this, [this, item] { run([item] { item->click(); }); });
      tieEntry(*item, *action);
    }
  }
}

void Binder::tieEntry(platform::MenuItem& item, QAction& action) {
  const auto refresh = [&action, &item, menu = menus_.value(&item)] {
    action.setText(toQt(item.caption.get()).replace(QLatin1Char('&'), QLatin1String("&&")));
    action.setVisible(item.visible);
    action.setEnabled(item.enabled);
    if (menu != nullptr) menu->setEnabled(item.enabled);
  };
  refresh();
  item.watch([refresh](Component&, Prop) { refresh(); });
}

// A menu opens where the logic asks for it, and from a button of its name.
void Binder::tieOpeners(platform::MenuItem& item, QMenu& menu, QWidget& page) {
  // Somebody who drives the program beside the windows may watch the pop-ups already.
  if (!item.popUp.handled()) {
    item.popUp.handle([this, &menu, &item] {
      popUp(menu);
      if (poppedUp_) poppedUp_(item);
    });
  }
  for (QWidget* widget : widgetsNamed(page, item.name())) {
    auto* button = qobject_cast<QPushButton*>(widget);
    if (button == nullptr) continue;
    button->setText(toQt(item.caption.get()));
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, button, &menu] {
      pressed_ = button;
      popUp(menu);
    });
  }
}

void Binder::popUp(QMenu& menu) {
  QPoint place = QCursor::pos();
  const auto keepInside = [&] {
    const QWidget* window = pressed_->window();
    const int right = window->mapToGlobal(QPoint(window->width() - dp(window, 24), 0)).x();
    place.setX(std::min(place.x(), right - menu.sizeHint().width()));
  };
  if (pressed_ && qobject_cast<QAbstractButton*>(pressed_) != nullptr) {
    // Under the button, and inside the window on its right.
    place = pressed_->mapToGlobal(QPoint(0, pressed_->height() + dp(pressed_, 6)));
    keepInside();
  } else if (const auto* list = qobject_cast<GridTable*>(pressed_);
             list != nullptr && !list->rect().contains(list->mapFromGlobal(place))) {
    // Opened by the keyboard.
    const QRect cell = list->cellRect(list->pressedRow(), list->pressedColumn());
    place = list->viewport()->mapToGlobal(cell.bottomLeft() + QPoint(dp(list, 24), 0));
    keepInside();
  }
  menu.setProperty("place", place);  // as asked for; a small screen may move it
  menu.popup(place);
  if (!typed_) return;
  const QList<QAction*> entries = menu.actions();
  const auto first = std::find_if(entries.begin(), entries.end(), [](const QAction* entry) {
    return entry->isVisible() && entry->isEnabled() && !entry->isSeparator();
  });
  if (first != entries.end()) menu.setActiveAction(*first);
}

// Enter presses what has the keyboard, and so does the space bar a drawing, as it does a button.
bool Binder::pressByKey(QWidget& widget, int key) {
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && enter) {
    button->click();
    return true;
  }
  Control* control = controls_.value(&widget);
  if (control == nullptr || !isPressableDrawing(*control, widget)) return false;
  if (!enter && key != Qt::Key_Space) return false;
  run([control] { control->click(); });
  return true;
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) held_ = false;
  if (event->type() == QEvent::MouseButtonPress) typed_ = false;
  if (event->type() == QEvent::KeyPress) typed_ = true;
  Control* control = controls_.value(watched);
  if (control == nullptr) {
    if (event->type() == QEvent::MouseButtonPress && !held_)
      pressed_ = static_cast<QWidget*>(watched)->parentWidget();
    const bool opener =
        event->type() == QEvent::KeyPress && qobject_cast<QAbstractButton*>(watched) != nullptr;
    return opener && pressByKey(*static_cast<QWidget*>(watched), static_cast<QKeyEvent*>(event)->key());
  }
  auto* widget = static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::MouseMove: {
      // A widget that appears under a pointer at rest is not moved over.
      const QPointF at = static_cast<QMouseEvent*>(event)->globalPosition();
      if (at != pointer_ && control->hover.handled()) run([control] { control->hover(); });
      pointer_ = at;
      break;
    }
    case QEvent::KeyPress: {
      // Ends here: the list around a box would take the key, too, and open the cell anew.
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (pressByKey(*widget, key)) return true;
      if (control->kind() != ControlKind::ComboBox || (key != Qt::Key_Return && key != Qt::Key_Enter)) break;
      static_cast<QComboBox*>(widget)->lineEdit()->event(event);
      event->accept();
      return true;
    }
    case QEvent::MouseButtonPress:
      // A press goes on to the containers around what was pressed.
      if (!held_ || pressed_ == nullptr || !widget->isAncestorOf(pressed_)) pressed_ = widget;
      held_ = true;
      if (static_cast<QMouseEvent*>(event)->button() == Qt::RightButton && control->alternate.handled()) {
        run([control] { control->alternate(); });
        return true;
      }
      break;
    case QEvent::ContextMenu:  // by the key; the mouse's button is told above
      if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard &&
          control->alternate.handled()) {
        pressed_ = widget;
        run([control] { control->alternate(); });
        return true;
      }
      break;
    case QEvent::MouseButtonRelease: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      const bool clicks =
          qobject_cast<QAbstractButton*>(widget) == nullptr && control->kind() != ControlKind::Grid;
      if (clicks && mouse->button() == Qt::LeftButton && pressed_ == widget && control->click.handled() &&
          control->kind() != ControlKind::ComboBox) {
        run([control] { control->click(); });
      }
      break;
    }
    case QEvent::FocusOut:
      if (auto* box = dynamic_cast<platform::ComboBox*>(control))
        leaveBox(*box, static_cast<QComboBox&>(*widget), static_cast<QFocusEvent*>(event)->reason());
      break;
    case QEvent::Wheel:
      // A closed list stays as it is: what is around it may scroll.
      if (control->kind() != ControlKind::ComboBox) break;
      event->ignore();
      return true;
    case QEvent::MouseButtonDblClick:
      if (control->doubleClick.handled()) run([control] { control->doubleClick(); });
      break;
    default:
      break;
  }
  return false;
}

}  // namespace desktop
