#include "desktop/control_display.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextDocument>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "desktop/keyboard_focus.h"
#include "platform/controls.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace desktop {

using widgets::onScreen;
using widgets::toQt;

namespace {

using platform::Control;
using platform::ControlKind;
using platform::Prop;

template <class Widget>
bool is(const QWidget& widget) {
  return qobject_cast<const Widget*>(&widget) != nullptr;
}

bool has(const QWidget& widget, const char* property) {
  return widget.metaObject()->indexOfProperty(property) >= 0;
}

QString textOf(const Control& control, Prop prop) {
  return toQt(control.property(prop)->asText());
}

void showToolTip(const Control& control, QWidget& widget) {
  const QString tip = textOf(control, Prop::ToolTip);
  // A file's name may look like markup.
  widget.setToolTip(Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip);
  if (control.kind() == ControlKind::Image && !tip.isEmpty()) widget.setAccessibleName(tip);
}

void showStyle(const Control& control, QWidget& widget) {
  QString style;
  if (!control.colour.get().automatic) {
    style += QStringLiteral("color: %1;").arg(onScreen(QGuiApplication::palette(), control.colour).name());
  }
  if (control.bold) style += QStringLiteral("font-weight: 700;");
  widget.setStyleSheet(style);
}

void showSize(const Control& control, QWidget& widget) {
  if (has(widget, "pointSize")) widget.setProperty("pointSize", control.size.get());
}

// Doubles ampersands, which a button would take for the mark of a shortcut.
QString escaped(QString text, const QWidget& widget) {
  if (is<QAbstractButton>(widget)) text.replace(QLatin1Char('&'), QLatin1String("&&"));
  return text;
}

void showCaption(const Control& control, QWidget& widget) {
  const QString text = textOf(control, Prop::Caption);
  auto* elsewhere = widget.findChild<QLabel*>(widget.objectName() + QStringLiteral("Caption"));
  const bool isTextShown =
      elsewhere == nullptr && has(widget, "text") && !widget.property("captionElsewhere").toBool();
  if (elsewhere != nullptr) elsewhere->setText(text);
  if (isTextShown) widget.setProperty("text", escaped(text, widget));
  // A screen reader reads a label's text; its accessible name is kept, as it says what the text is about. So
  // is that of a button which shows a mere sign.
  const bool onlyShows = isTextShown && !is<QAbstractButton>(widget);
  const bool tells = widgets::hasWords(text) || widget.accessibleName().isEmpty();
  if (!onlyShows && tells && !text.trimmed().isEmpty()) widget.setAccessibleName(text.trimmed());
}

void showPicture(const Control& control, QWidget& widget) {
  const QString picture = textOf(control, Prop::Picture);
  if (!picture.isEmpty()) widget.setProperty("picture", picture);
}

void showChoice(const Control& control, QWidget& widget) {
  const auto& box = static_cast<const platform::ComboBox&>(control);
  auto& combo = static_cast<QComboBox&>(widget);
  const QSignalBlocker quiet(&combo);
  if (combo.currentIndex() != box.index) combo.setCurrentIndex(box.index);
  const QString text = toQt(box.text.get());
  if (combo.currentText() != text) combo.setEditText(text);
}

void showLines(const Control& control, QWidget& widget) {
  auto& combo = static_cast<QComboBox&>(widget);
  const auto& lines = static_cast<const platform::ComboBox&>(control).lines();
  {
    const QSignalBlocker quiet(&combo);
    if (combo.count() > 0 && combo.count() + 1 == static_cast<int>(lines.size())) {
      combo.addItem(toQt(lines.back()));
    } else {
      combo.clear();
      for (const std::string& line : lines) combo.addItem(toQt(line));
    }
  }
  showChoice(control, widget);
}

void showText(const Control& control, QWidget& widget) {
  auto& edit = static_cast<QLineEdit&>(widget);
  const QString text = textOf(control, Prop::Text);
  if (edit.text() != text) edit.setText(text);
}

void showTick(const Control& control, QWidget& widget) {
  const int value = static_cast<const platform::CheckBox&>(control).value;
  static_cast<QCheckBox&>(widget).setCheckState(value == 0   ? Qt::Unchecked
                                                : value == 1 ? Qt::Checked
                                                             : Qt::PartiallyChecked);
}

struct Shown {
  Prop prop;
  std::optional<ControlKind> kind;  // none: controls of any kind
  void (*show)(const Control&, QWidget&);
};

constexpr std::array<Shown, 17> shownProperties{{
    {Prop::Visible, {}, [](const Control& control, QWidget& widget) { widget.setVisible(control.visible); }},
    {Prop::Enabled, {}, [](const Control& control, QWidget& widget) { widget.setEnabled(control.enabled); }},
    {Prop::Focus, {}, [](const Control&, QWidget& widget) { widget.setFocus(); }},
    {Prop::ToolTip, {}, showToolTip},
    {Prop::Colour, {}, showStyle},
    {Prop::Bold, {}, showStyle},
    {Prop::Size, {}, showSize},
    {Prop::Caption, {}, showCaption},
    {Prop::Picture, {}, showPicture},
    {Prop::Text, ControlKind::ComboBox, showChoice},
    {Prop::Index, ControlKind::ComboBox, showChoice},
    {Prop::Lines, ControlKind::ComboBox, showLines},
    {Prop::Text, ControlKind::TextBox, showText},
    {Prop::Value, ControlKind::CheckBox, showTick},
    {Prop::Value, ControlKind::Option,
     [](const Control& control, QWidget& widget) {
       static_cast<QRadioButton&>(widget).setChecked(static_cast<const platform::Option&>(control).value);
     }},
    {Prop::Value, ControlKind::ScrollBar,
     [](const Control& control, QWidget& widget) {
       static_cast<QAbstractSlider&>(widget).setValue(static_cast<const platform::ScrollBar&>(control).value);
     }},
    {Prop::Value, ControlKind::ProgressBar,
     [](const Control& control, QWidget& widget) {
       static_cast<QProgressBar&>(widget).setValue(static_cast<const platform::ProgressBar&>(control).value);
     }},
}};

// The class that a widget must have to show a control; any widget can show controls of the other kinds.
constexpr std::array<std::pair<ControlKind, bool (*)(const QWidget&)>, 9> classes{{
    {ControlKind::Button, is<QAbstractButton>},
    {ControlKind::CheckBox, is<QCheckBox>},
    {ControlKind::Option, is<QRadioButton>},
    {ControlKind::ComboBox, is<QComboBox>},
    {ControlKind::TextBox, is<QLineEdit>},
    {ControlKind::ScrollBar, is<QAbstractSlider>},
    {ControlKind::ProgressBar, is<QProgressBar>},
    {ControlKind::Grid, is<QAbstractScrollArea>},
    {ControlKind::Label, [](const QWidget& widget) { return has(widget, "text"); }},
}};

}  // namespace

bool ControlDisplay::canShow(const QWidget& widget, ControlKind kind) {
  const auto* wanted =
      std::find_if(classes.begin(), classes.end(), [&](const auto& row) { return row.first == kind; });
  return wanted == classes.end() || wanted->second(widget);
}

void ControlDisplay::show(const Control& control, Prop prop, QWidget& widget) {
  const bool hides = prop == Prop::Visible && !control.visible;
  const bool disables = prop == Prop::Enabled && !control.enabled;
  const bool enables = prop == Prop::Enabled && control.enabled;
  const bool inUse = (hides || disables) && handFocusToPage(widget);
  if (inUse && disables) disabledInUse_ = &widget;
  for (const Shown& row : shownProperties) {
    if (row.prop == prop && row.kind.value_or(control.kind()) == control.kind()) row.show(control, widget);
  }
  if (enables && disabledInUse_ == &widget) takeFocusFromPage(*std::exchange(disabledInUse_, nullptr));
}

}  // namespace desktop
