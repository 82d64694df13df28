#include "desktop/binder.h"

#include <QAbstractSlider>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <stdexcept>

#include "desktop/unseen_controls.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::fromQt;
using widgets::toQt;

namespace {

using platform::Component;
using platform::Control;
using platform::ControlKind;
using platform::Prop;

// Timers are invisible, and menus are made from the form.
bool needsNoWidget(const Component& component) {
  return component.kind() == ControlKind::Timer || component.kind() == ControlKind::MenuItem;
}

QList<QWidget*> widgetsNamed(const QWidget& page, const std::string& name) {
  QList<QWidget*> found = page.findChildren<QWidget*>(toQt(name));
  if (page.objectName() == toQt(name)) found.append(const_cast<QWidget*>(&page));
  return found;
}

void prepareBox(QComboBox& box) {
  box.setEditable(true);
  box.setInsertPolicy(QComboBox::NoInsert);
  box.setCompleter(nullptr);
  box.setFocusPolicy(Qt::StrongFocus);  // not by the wheel, which would change a box that it passes over
  box.lineEdit()->setAccessibleName(box.accessibleName());
}

void prepareSlider(const platform::ScrollBar& bar, QAbstractSlider& slider) {
  slider.setRange(std::min(bar.first, bar.last), std::max(bar.first, bar.last));
  // Qt has the greater value at the top of a vertical slider, and at the right of a horizontal one.
  slider.setInvertedAppearance((bar.first > bar.last) != (slider.orientation() == Qt::Vertical));
}

void prepare(const Control& control, QWidget& widget) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) label->setTextFormat(Qt::PlainText);
  if (control.kind() == ControlKind::ComboBox) prepareBox(static_cast<QComboBox&>(widget));
  if (control.kind() == ControlKind::ScrollBar) {
    prepareSlider(static_cast<const platform::ScrollBar&>(control), static_cast<QAbstractSlider&>(widget));
  }
  // The form decides which options exclude one another.
  if (auto* option = qobject_cast<QRadioButton*>(&widget)) option->setAutoExclusive(false);
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
    if (widgets.isEmpty() && !isUnseen(*component)) fault(*component, QStringLiteral("no widget shows it"));
    if (!widgets.isEmpty() && isUnseen(*component))
      fault(*component, QStringLiteral("is shown, but listed as unseen"));
    if (!widgets.isEmpty() && !ControlDisplay::canShow(*widgets.first(), component->kind())) {
      fault(*component, QStringLiteral("a widget of this class cannot show it"));
    }
  }
  return faults;
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
  menus_.tie(form, page);
}

void Binder::tie(Control& control, QWidget& widget) {
  prepare(control, widget);
  for (const platform::PropertyBase* property : control.properties()) {
    const bool styles = property->id() == Prop::Colour || property->id() == Prop::Bold;
    if (!styles) display_.show(control, property->id(), widget);
  }
  if (!control.colour.get().automatic || control.bold) display_.show(control, Prop::Colour, widget);
  display_.show(control, Prop::Lines, widget);
  const QPointer<QWidget> shown(&widget);
  control.watch([this, &control, shown](Component&, Prop prop) {
    if (shown) display_.show(control, prop, *shown);
  });
  input_.listen(control, widget);
  tied_.emplace_back(&control, shown);
}

void Binder::recolour() {
  for (const auto& [control, widget] : tied_) {
    if (widget && !control->colour.get().automatic) display_.show(*control, Prop::Colour, *widget);
  }
}

}  // namespace desktop
