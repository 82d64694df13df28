#include "stage/audit.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSet>
#include <QStyle>
#include <QToolButton>
#include <array>
#include <utility>
#include <vector>

#include "platform/controls.h"
#include "stage/contrast.h"
#include "widgets/chronometer.h"
#include "widgets/elided_label.h"
#include "widgets/fit_label.h"
#include "widgets/grid_table.h"
#include "widgets/picture.h"
#include "widgets/qt_text.h"
#include "widgets/step_button.h"

namespace stage {
namespace {

constexpr double readable = 4.5;  // WCAG 2.1, level AA, for text
constexpr double visible = 3;     // and for drawings and large letters
// Pixels high: the thin strokes of smaller letters are blurred and never reach the colour of their ink.
constexpr int solidInk = 28;
constexpr int rounding = 2;  // pixels that scaling may take from a margin

class Audit {
 public:
  Audit(const platform::Form& form, QWidget& window, QImage picture)
      : form_(form), window_(window), picture_(std::move(picture)) {}

  QStringList faults() {
    walkTree(QAccessible::queryAccessibleInterface(&window_));
    findPictures();
    for (QWidget* widget : window_.findChildren<QWidget*>()) {
      if (isControl(*widget) && widget->isVisible() && !isCovered(*widget)) checkAll(*widget);
    }
    return faults_;
  }

 private:
  // Whether it is a widget of the page, not a part inside one.
  static bool isControl(const QWidget& widget) {
    if (widget.objectName().isEmpty() || widget.objectName().startsWith(QLatin1String("qt_"))) return false;
    return qobject_cast<const QLabel*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSlider*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QProgressBar*>(&widget) != nullptr ||
           QLatin1String(widget.metaObject()->className()).startsWith(QLatin1String("widgets::"));
  }

  void fault(const QWidget& widget, const QString& what) {
    faults_ << widgets::toQt(form_.name()) + QLatin1Char('.') + widget.objectName() + QStringLiteral(" ") +
                   what;
  }

  // Walks the accessibility tree as a screen reader does.
  void walkTree(QAccessibleInterface* face) {
    if (face == nullptr || face->state().invisible) return;
    if (face->object() != nullptr) inTree_.insert(face->object());
    const auto* field = qobject_cast<const QLineEdit*>(face->object());
    if (field != nullptr && face->text(QAccessible::Name).trimmed().isEmpty()) {
      fault(*field->parentWidget(), QStringLiteral("has a field without a name"));
    }
    // The cells of a list are named by their texts.
    if (face->role() == QAccessible::Table || face->role() == QAccessible::List) return;
    for (int i = 0; i < face->childCount(); ++i) walkTree(face->child(i));
  }

  void checkAll(QWidget& widget) {
    checkPlace(widget);
    checkOverlap(widget);
    checkText(widget);
    checkPictures(widget);
    checkName(widget);
    checkKeyboard(widget);
    checkContrast(widget);
  }

  [[nodiscard]] std::array<QPoint, 5> probes(const QWidget& widget) const {
    const QRect inside = widget.rect().adjusted(2, 2, -2, -2);
    std::array<QPoint, 5> points{inside.center(), inside.topLeft(), inside.topRight(), inside.bottomLeft(),
                                 inside.bottomRight()};
    for (QPoint& point : points) point = widget.mapTo(&window_, point);
    return points;
  }
  // Another widget that covers the widget at a point of the window; null if none does.
  [[nodiscard]] const QWidget* cover(const QWidget& widget, const QPoint& at) const {
    const QWidget* top = window_.childAt(at);
    const bool own =
        top == nullptr || top == &widget || widget.isAncestorOf(top) || top->isAncestorOf(&widget);
    return own || isEditorOf(widget, *top) ? nullptr : top;
  }
  // Whether it is a cell editor, which is meant to lie over its list.
  static bool isEditorOf(const QWidget& widget, const QWidget& top) {
    if (qobject_cast<const widgets::GridTable*>(&widget) == nullptr) return false;
    for (const QWidget* over = &top; over != nullptr; over = over->parentWidget()) {
      if (over->property("over").toString() == QLatin1String("list")) return true;
    }
    return false;
  }
  // Whether it is covered on purpose: by a whole page, or by a panel, which may lie over a part.
  [[nodiscard]] bool isCovered(const QWidget& widget) const {
    const auto points = probes(widget);
    const auto over = [&](const QPoint& at) { return cover(widget, at); };
    return std::any_of(points.begin(), points.end(), [&](const QPoint& at) { return isOnPanel(over(at)); }) ||
           std::all_of(points.begin(), points.end(), [&](const QPoint& at) { return over(at) != nullptr; });
  }
  static bool isOnPanel(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
      const QString look = widget->property("look").toString();
      if (look == QLatin1String("notice") || look == QLatin1String("floating")) return true;
    }
    return false;
  }

  void checkPlace(const QWidget& widget) {
    if (widget.width() < 2 || widget.height() < 2) fault(widget, QStringLiteral("has no room at all"));
    for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
      const QRect place(widget.mapTo(around, QPoint(0, 0)), widget.size());
      if (!around->rect().contains(place)) {
        fault(widget, QStringLiteral("is cut off by ") + around->objectName());
        return;
      }
      if (around == &window_ || qobject_cast<const QAbstractScrollArea*>(around->parentWidget()) != nullptr) {
        return;
      }
    }
  }

  void checkOverlap(const QWidget& widget) {
    for (const QPoint& at : probes(widget)) {
      const QWidget* top = cover(widget, at);
      if (top == nullptr) continue;
      fault(widget, QStringLiteral("lies under ") + top->objectName());
      return;
    }
  }

  void checkText(const QWidget& widget) {
    const auto* box = qobject_cast<const QComboBox*>(&widget);
    const QString text = box != nullptr ? box->currentText() : widget.property("text").toString();
    if (!text.isEmpty() && !textFits(widget, text)) fault(widget, QStringLiteral("cuts its text: ") + text);
  }
  static bool textFits(const QWidget& widget, const QString& text) {
    if (const auto* step = qobject_cast<const widgets::StepButton*>(&widget)) return step->textFits();
    if (const auto* fit = qobject_cast<const widgets::FitLabel*>(&widget)) return fit->textFits();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
      const int room = box->lineEdit() != nullptr ? box->lineEdit()->width() - 4 : box->width() - 30;
      return box->fontMetrics().horizontalAdvance(text) <= room;
    }
    if (!hasFixedText(widget)) return true;
    const QSize needed = widget.sizeHint();
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && label->wordWrap()) {
      return label->heightForWidth(widget.width()) <= widget.height();
    }
    return needed.width() <= widget.width() + rounding && needed.height() <= widget.height();
  }
  // Whether the text is the program's own and must fit; texts of any length are shortened by their widgets.
  static bool hasFixedText(const QWidget& widget) {
    return qobject_cast<const widgets::ElidedLabel*>(&widget) == nullptr &&
           qobject_cast<const QLineEdit*>(&widget) == nullptr &&
           qobject_cast<const QToolButton*>(&widget) == nullptr;
  }

  [[nodiscard]] QRect inWindow(const QWidget& widget, const QRect& place) const {
    return {widget.mapTo(&window_, place.topLeft()), place.size()};
  }
  // Whether a picture cannot be seen; a label over it is transparent and does not hide it.
  [[nodiscard]] bool isHidden(const QWidget& picture) const {
    const auto points = probes(picture);
    const auto hides = [&](const QPoint& at) {
      const QWidget* over = cover(picture, at);
      return over != nullptr && qobject_cast<const QLabel*>(over) == nullptr;
    };
    return !picture.isVisible() || std::any_of(points.begin(), points.end(), [&](const QPoint& at) {
      return isOnPanel(cover(picture, at));
    }) || std::all_of(points.begin(), points.end(), hides);
  }
  // Notes where pictures are; texts may lie over those marked as a background.
  void findPictures() {
    for (const QWidget* widget : window_.findChildren<QWidget*>()) {
      if (widget->property("background").toBool() || isHidden(*widget)) continue;
      const QRect place = pictureOf(*widget);
      if (!place.isEmpty()) pictures_.emplace_back(widget, inWindow(*widget, place));
    }
  }
  // Where a widget draws a picture; empty where it draws none.
  static QRect pictureOf(const QWidget& widget) {
    if (const auto* picture = qobject_cast<const widgets::Picture*>(&widget))
      return picture->pictureRect().toAlignedRect();
    if (const auto* button = qobject_cast<const widgets::PictureButton*>(&widget))
      return button->pictureRect().toAlignedRect();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && !label->pixmap(Qt::ReturnByValue).isNull() ? label->contentsRect() : QRect();
  }
  static QRect textOf(const QWidget& widget) {
    const QString text = widget.property("text").toString();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (text.trimmed().isEmpty() || label == nullptr) return text.isEmpty() ? QRect() : widget.rect();
    const int flags = static_cast<int>(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
    // A text that is too long ends at the label's edge.
    return label->style()
        ->itemTextRect(label->fontMetrics(), label->contentsRect(), flags, true, text)
        .intersected(label->contentsRect());
  }
  void checkPictures(const QWidget& widget) {
    const QRect text = inWindow(widget, textOf(widget));
    for (const auto& [picture, place] : pictures_) {
      if (picture == &widget || !place.intersects(text)) continue;
      fault(widget, QStringLiteral("has its text over a picture: ") + picture->objectName());
    }
  }

  void checkName(QWidget& widget) {
    if (!inTree_.contains(&widget)) fault(widget, QStringLiteral("is not in the accessibility tree"));
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    if (face == nullptr || face->role() == QAccessible::NoRole || face->role() == QAccessible::Client) {
      fault(widget, QStringLiteral("has no role"));
      return;
    }
    const bool silent =
        qobject_cast<const QLabel*>(&widget) != nullptr || face->role() == QAccessible::Graphic;
    const QString name = face->text(QAccessible::Name);
    const bool sign = qobject_cast<const QAbstractButton*>(&widget) != nullptr && !widgets::hasWords(name);
    if (!silent && (sign || name.trimmed().isEmpty())) {
      fault(widget, QStringLiteral("has no accessible name"));
    }
    const QString text = widget.property("text").toString();
    const bool drawn =
        qobject_cast<const QLabel*>(&widget) == nullptr && face->role() == QAccessible::StaticText;
    const QString told = name + face->text(QAccessible::Description);
    if (drawn && !text.isEmpty() && told.count(text) != 1) {
      fault(widget, QStringLiteral("is not told once: ") + told);
    }
  }

  void checkKeyboard(const QWidget& widget) {
    const bool typed = (widget.focusPolicy() & Qt::TabFocus) != 0 || widget.focusProxy() != nullptr;
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (typed || !widget.isEnabled() || (label != nullptr && label->buddy() != nullptr)) return;
    const bool made = qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                      qobject_cast<const QComboBox*>(&widget) != nullptr ||
                      qobject_cast<const QAbstractSlider*>(&widget) != nullptr ||
                      qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
    if (made || isPressed(widget)) fault(widget, QStringLiteral("is out of the keyboard's reach"));
  }
  [[nodiscard]] bool isPressed(const QWidget& widget) const {
    const std::string name = widgets::fromQt(widget.objectName());
    for (platform::Component* component : form_.components()) {
      const auto* control = dynamic_cast<const platform::Control*>(component);
      if (control != nullptr && control->name() == name) return control->click.handled();
    }
    return false;
  }

  // The contrast of the strongest ink at a place in the window.
  [[nodiscard]] double inkIn(const QRect& place) const {
    const double ratio = picture_.devicePixelRatio();
    const QRectF exact(place);
    return inkContrast(picture_, QRectF(exact.topLeft() * ratio, exact.size() * ratio).toAlignedRect());
  }

  void checkCells(const widgets::GridTable& table) {
    const QPoint corner = table.viewport()->mapTo(&window_, QPoint(0, 0));
    for (int row = 0; row < table.model()->rowCount(); ++row) {
      for (int column = 0; column < table.model()->columnCount(); ++column) {
        const QModelIndex index = table.model()->index(row, column);
        const QRect cell = table.visualRect(index);
        const bool seen = table.viewport()->rect().contains(cell) && !cell.isEmpty();
        if (!seen || index.data().toString().trimmed().isEmpty()) continue;
        const QWidget* top = window_.childAt(corner + cell.center());
        if (top != table.viewport()) continue;  // its editor lies over it
        const double found = inkIn(cell.translated(corner));
        if (found >= readable) continue;
        fault(table, QStringLiteral("has a contrast of %1 in row %2").arg(found, 0, 'f', 1).arg(row + 1));
        return;
      }
    }
  }

  void checkContrast(const QWidget& widget) {
    if (!widget.isEnabled() || widget.fontMetrics().height() * picture_.devicePixelRatio() < solidInk) return;
    if (const auto* table = qobject_cast<const widgets::GridTable*>(&widget)) checkCells(*table);
    const bool drawn = qobject_cast<const widgets::Picture*>(&widget) != nullptr ||
                       qobject_cast<const widgets::PictureButton*>(&widget) != nullptr;
    const bool written = !widget.property("text").toString().trimmed().isEmpty();
    if (!drawn && !written) return;
    const double found = inkIn(QRect(widget.mapTo(&window_, QPoint(0, 0)), widget.size()));
    const bool large = qobject_cast<const widgets::ChronoDigits*>(&widget) != nullptr;
    if (found < (drawn || large ? visible : readable)) {
      fault(widget, QStringLiteral("has a contrast of %1").arg(found, 0, 'f', 1));
    }
  }

  const platform::Form& form_;
  QWidget& window_;
  const QImage picture_;  // 32 bits a pixel
  QStringList faults_;
  QSet<const QObject*> inTree_;                             // objects in the accessibility tree
  std::vector<std::pair<const QWidget*, QRect>> pictures_;  // and their places in the window
};

}  // namespace

QStringList faultsOf(const platform::Form& form, QWidget& window, const QImage& picture) {
  return Audit(form, window, picture.convertToFormat(QImage::Format_RGB32)).faults();
}

}  // namespace stage
