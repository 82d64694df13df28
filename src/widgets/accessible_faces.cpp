#include "widgets/accessible_faces.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <algorithm>
#include <array>

namespace widgets {
namespace {

struct Face {
  const char* widget;  // its class
  QAccessible::Role role;
};

constexpr std::array<Face, 14> faces{{
    {"widgets::ChronoDigits", QAccessible::StaticText},
    {"widgets::CountdownRing", QAccessible::StaticText},
    {"widgets::FitLabel", QAccessible::StaticText},
    {"widgets::HeartTarget", QAccessible::StaticText},
    {"widgets::SequenceBar", QAccessible::ProgressBar},
    {"widgets::TakeRing", QAccessible::ProgressBar},
    {"widgets::TimeBar", QAccessible::Slider},
    {"widgets::VolumeGauge", QAccessible::ProgressBar},
    {"widgets::SessionProfile", QAccessible::Chart},
    {"widgets::EffortChip", QAccessible::Graphic},
    {"widgets::Picture", QAccessible::Graphic},
    {"widgets::PagePreview", QAccessible::Graphic},
    {"widgets::Waveform", QAccessible::Graphic},
    {"widgets::ZoneBand", QAccessible::Graphic},
}};

// A widget that draws its text itself. Its name is its accessible name, if it has one, and that text.
class Drawn final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const QString shown = widget()->property("text").toString();
    if (kind != QAccessible::Name || shown.isEmpty()) return QAccessibleWidget::text(kind);
    const QString name = QAccessibleWidget::text(QAccessible::Name);
    const QString unit = widget()->property("unit").toString();
    return (name.isEmpty() ? shown : name + QStringLiteral(" : ") + shown) +
           (unit.isEmpty() ? unit : QLatin1Char(' ') + unit);
  }
};

// Qt's own name for a drop-down list is the line chosen in it; here it is the list's accessible name.
class DropDown final : public QAccessibleWidget {
 public:
  explicit DropDown(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(kind);
  }
  // A box may become editable later on.
  [[nodiscard]] int childCount() const override { return box_.lineEdit() != nullptr ? 2 : 1; }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    if (index == 0) return QAccessible::queryAccessibleInterface(box_.view());
    return index == 1 && box_.lineEdit() != nullptr ? QAccessible::queryAccessibleInterface(box_.lineEdit())
                                                    : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    if (child->object() == box_.view()) return 0;
    return child->object() == box_.lineEdit() ? 1 : -1;
  }

 private:
  QComboBox& box_;
};

QAccessibleInterface* makeFace(const QString& name, QObject* object) {
  if (auto* box = qobject_cast<QComboBox*>(object); box != nullptr) return new DropDown(*box);
  auto* widget = qobject_cast<QWidget*>(object);
  const auto face = std::find_if(faces.begin(), faces.end(),
                                 [&](const Face& f) { return name == QLatin1String(f.widget); });
  if (widget == nullptr || face == faces.end()) return nullptr;
  return new Drawn(widget, face->role);
}

}  // namespace

void installAccessibleFaces() {
  QAccessible::installFactory(makeFace);
}

void announceNewText(QWidget& drawn) {
  QAccessibleEvent event(&drawn, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace widgets
