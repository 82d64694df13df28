#include "stage/widget_hands.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QRadioButton>

#include "console/arguments.h"
#include "desktop/covered_parts.h"
#include "desktop/unseen_controls.h"
#include "model/grid_rows.h"
#include "widgets/check_list.h"
#include "widgets/grid_table.h"
#include "widgets/qt_text.h"

namespace stage {
namespace {

using widgets::CheckList;
using widgets::fromQt;
using widgets::GridTable;
using widgets::toQt;

// Lets the windows handle what has happened.
void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

void mouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
           Qt::MouseButtons down, Qt::KeyboardModifiers held = Qt::NoModifier) {
  QMouseEvent event(type, QPointF(at), QPointF(widget.mapToGlobal(at)), button, down, held);
  QApplication::sendEvent(&widget, &event);
}

void click(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers held = Qt::NoModifier) {
  mouse(widget, QEvent::MouseButtonPress, at, button, button, held);
  mouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, held);
}

// A press anywhere else would close them, too.
void closeMenus() {
  for (QWidget* menu = QApplication::activePopupWidget(); menu != nullptr;
       menu = QApplication::activePopupWidget()) {
    menu->close();
  }
}

// Where a rider would click: on the box of a check box or an option, else in the middle.
QPoint spot(const QWidget& widget) {
  const bool box = qobject_cast<const QCheckBox*>(&widget) != nullptr ||
                   qobject_cast<const QRadioButton*>(&widget) != nullptr;
  return box ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center();
}

void move(QWidget& widget, const QPoint& at) {
  // A move to the place where the pointer is already would be ignored.
  mouse(widget, QEvent::MouseMove, at + QPoint(1, 1), Qt::NoButton, Qt::NoButton);
  mouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
}

void stroke(QWidget& widget, int code, const QString& text = {},
            Qt::KeyboardModifiers held = Qt::NoModifier) {
  QKeyEvent down(QEvent::KeyPress, code, held, text);
  QApplication::sendEvent(&widget, &down);
  QKeyEvent up(QEvent::KeyRelease, code, held, text);
  QApplication::sendEvent(&widget, &up);
}

// "Enter", "F5", "Ctrl+C": as Qt's own names are written.
QKeyCombination keyOf(const std::string& key) {
  return QKeySequence::fromString(toQt(key).replace(QLatin1String("Enter"), QLatin1String("Return")),
                                  QKeySequence::PortableText)[0];
}

[[noreturn]] void miss(const platform::Component& component, const std::string& why) {
  throw console::CommandError(component.form().name() + "." + component.name() + ": " + why);
}

const QWidget* topAt(const QWidget& widget, const QPoint& at) {
  return widget.window()->childAt(widget.mapTo(widget.window(), at));
}

bool isIn(const QWidget* widget, const QWidget& whole) {
  return widget == &whole || whole.isAncestorOf(widget);
}

// Whether a visible part of the page is meant to cover the widget at that point, or has replaced it.
bool isCoveredByDesign(const platform::Form& form, const QWidget& page, const QWidget& widget,
                       const QPoint& at) {
  for (const QWidget* part = &widget; part != nullptr && part != &page; part = part->parentWidget()) {
    const auto cover = desktop::coverOf(form, fromQt(part->objectName()));
    const auto* over = cover ? page.findChild<QWidget*>(toQt(*cover)) : nullptr;
    if (over == nullptr || !over->isVisible()) continue;
    if (widget.isVisible() ? isIn(topAt(widget, at), *over) : widget.isVisibleTo(part)) return true;
  }
  return false;
}

// Whether the widget belongs to a cell editor, which lies over its list.
bool isOverList(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (widget->property("over").toString() == QLatin1String("list")) return true;
  }
  return false;
}

std::string hiderOf(const QWidget& widget) {
  const QWidget* hidden = &widget;
  while (!hidden->isHidden() && hidden->parentWidget() != nullptr) hidden = hidden->parentWidget();
  return fromQt(hidden->objectName());
}

// What keeps a rider from touching the widget at that point; empty if nothing does.
std::string obstacle(const QWidget& widget, const QPoint& at) {
  if (!widget.isVisible()) return "its widget is not to be seen, for " + hiderOf(widget) + " is hidden";
  if (!widget.isEnabled()) return "its widget is disabled";
  const QWidget* top = topAt(widget, at);
  if (top == nullptr) return "its widget lies outside the window";
  const bool free = isIn(top, widget) || top->isAncestorOf(&widget) ||
                    (qobject_cast<const GridTable*>(&widget) != nullptr && isOverList(top));
  return free ? std::string() : "its widget lies under " + fromQt(top->objectName());
}

}  // namespace

QWidget* WidgetHands::find(const platform::Component& component) const {
  closeMenus();
  windows_->refresh();
  settle();
  const QWidget* page = windows_->page(component.form());
  auto* widget = page != nullptr ? page->findChild<QWidget*>(toQt(component.name())) : nullptr;
  // Without a screen Qt leaves the keyboard with no widget when a drop-down list closes.
  if (widget != nullptr && widget->isVisible() && QApplication::focusWidget() == nullptr) {
    widget->activateWindow();
    settle();
  }
  return widget;
}

bool WidgetHands::canTouch(const platform::Component& component, const QWidget& widget,
                           const QPoint& at) const {
  if (isCoveredByDesign(component.form(), *windows_->page(component.form()), widget, at)) return false;
  if (const std::string why = obstacle(widget, at); !why.empty()) miss(component, why);
  return true;
}

template <class Widget>
Widget* WidgetHands::reach(const platform::Component& component) const {
  QWidget* found = find(component);
  if (desktop::isUnseen(component)) return nullptr;
  if (found == nullptr) miss(component, "no widget shows it");
  // Only the cell to be pressed has to be free, not the middle of the list.
  const bool list = component.kind() == platform::ControlKind::Grid;
  if (!canTouch(component, *found, list ? QPoint(0, 0) : spot(*found))) return nullptr;
  auto* widget = qobject_cast<Widget*>(found);
  if (widget == nullptr) miss(component, "its widget does not take that");
  return widget;
}

std::optional<QPoint> WidgetHands::reachCell(GridTable& table, int row, int column) const {
  table.gridModel()->flush();
  table.scrollTo(table.gridModel()->index(row - 1, column - 1));
  const QPoint at = table.cellRect(row, column).center();
  if (!canTouch(*table.grid(), table, table.viewport()->mapTo(&table, at))) return std::nullopt;
  return at;
}

QAction& WidgetHands::entry(const platform::Component& item) const {
  const QWidget* page = windows_->page(item.form());
  auto* action = page != nullptr ? page->findChild<QAction*>(toQt(item.name())) : nullptr;
  if (action == nullptr) miss(item, "no menu has it");
  if (!action->isVisible() || !action->isEnabled()) miss(item, "its menu does not offer it");
  return *action;
}

void WidgetHands::press(platform::Component& target) {
  if (dynamic_cast<platform::MenuItem*>(&target) != nullptr) {
    QAction& action = entry(target);
    closeMenus();
    action.trigger();
  } else if (auto* widget = reach<QWidget>(target)) {
    click(*widget, spot(*widget));
  } else {
    logic_.press(target);
  }
  settle();
}

void WidgetHands::doublePress(platform::Control& target) {
  auto* widget = reach<QWidget>(target);
  if (widget == nullptr) {
    logic_.doublePress(target);
    return;
  }
  click(*widget, spot(*widget));
  mouse(*widget, QEvent::MouseButtonDblClick, spot(*widget), Qt::LeftButton, Qt::LeftButton);
  settle();
}

void WidgetHands::hover(platform::Control& target) {
  auto* widget = reach<QWidget>(target);
  if (widget == nullptr) {
    logic_.hover(target);
    return;
  }
  // A frame is touched at its edge, since its contents cover the rest.
  const bool holds = target.kind() == platform::ControlKind::Frame;
  mouse(*widget, QEvent::MouseMove, holds ? QPoint(2, 2) : spot(*widget), Qt::NoButton, Qt::NoButton);
  settle();
}

void WidgetHands::tick(platform::Control& box, int value) {
  auto* widget = reach<QAbstractButton>(box);
  // A person cannot make a box grey, nor put an option out; a script can.
  if (widget == nullptr || value > 1 || (value == 0 && qobject_cast<QRadioButton*>(widget) != nullptr)) {
    logic_.tick(box, value);
    return;
  }
  const auto* check = qobject_cast<QCheckBox*>(widget);
  const Qt::CheckState wanted = value == 1 ? Qt::Checked : Qt::Unchecked;
  // From grey it takes a second click to put a box out.
  const int clicks = check != nullptr && check->checkState() == Qt::PartiallyChecked ? 2 : 1;
  for (int i = 0; i < clicks && (check == nullptr || check->checkState() != wanted); ++i) {
    click(*widget, spot(*widget));
    settle();
  }
}

void WidgetHands::pick(platform::Control& list, int line) {
  auto* widget = reach<QComboBox>(list);
  if (widget == nullptr) {
    logic_.pick(list, line);
    return;
  }
  widget->setFocus();
  widget->showPopup();
  QAbstractItemView& lines = *widget->view();
  lines.setCurrentIndex(lines.model()->index(line, 0));
  stroke(lines, Qt::Key_Return);
  settle();
}

void WidgetHands::type(platform::Control& box, const std::string& text) {
  auto* widget = reach<QWidget>(box);
  auto* combo = qobject_cast<QComboBox*>(widget);
  auto* edit = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(widget);
  if (widget == nullptr) {
    logic_.type(box, text);
    return;
  }
  if (edit == nullptr) miss(box, "nothing can be typed in its widget");
  // A drop-down list has the keyboard itself, and passes the keys on to its line.
  widget->setFocus();
  edit->selectAll();
  stroke(*widget, Qt::Key_Backspace);
  if (!text.empty()) stroke(*widget, 0, toQt(text));
  stroke(*widget, Qt::Key_Return);
  settle();
}

void WidgetHands::scroll(platform::ScrollBar& bar, int value) {
  auto* widget = reach<QAbstractSlider>(bar);
  if (widget == nullptr) {
    logic_.scroll(bar, value);
    return;
  }
  widget->setSliderPosition(value);
  widget->triggerAction(QAbstractSlider::SliderMove);
  settle();
}

void WidgetHands::cell(platform::Grid& grid, int row, int column, platform::MouseButton button) {
  auto* table = reach<GridTable>(grid);
  const auto at = table != nullptr ? reachCell(*table, row, column) : std::nullopt;
  if (!at) {
    logic_.cell(grid, row, column, button);
    return;
  }
  click(*table->viewport(), *at, button == platform::MouseButton::Left ? Qt::LeftButton : Qt::RightButton);
  settle();
}

void WidgetHands::hoverCell(platform::Grid& grid, int row, int column) {
  auto* table = reach<GridTable>(grid);
  const auto at = table != nullptr ? reachCell(*table, row, column) : std::nullopt;
  if (!at) {
    logic_.hoverCell(grid, row, column);
    return;
  }
  move(*table->viewport(), *at);
  settle();
}

void WidgetHands::checkRow(platform::Grid& grid, int row, bool on) {
  auto* list = reach<CheckList>(grid);
  // A click on a row that is as wanted already would undo it.
  if (list == nullptr || grid.checked(row) == on || !reachCell(*list, row, 1)) {
    logic_.checkRow(grid, row, on);
  } else {
    click(*list->viewport(), list->boxRect(row).center());
  }
  settle();
}

// The first row by the arrow keys, since a click would open a cell; the others by the mouse.
void WidgetHands::select(platform::Grid& grid, const std::vector<int>& rows) {
  auto* table = reach<GridTable>(grid);
  if (table == nullptr) {
    logic_.select(grid, rows);
    return;
  }
  table->setFocus();
  stroke(*table, Qt::Key_Home);
  for (int row = 1; row < rows.front(); ++row) stroke(*table, Qt::Key_Down);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const auto at = reachCell(*table, rows[i], model::column::sequence);
    if (at) click(*table->viewport(), *at, Qt::LeftButton, Qt::ControlModifier);
  }
  settle();
}

void WidgetHands::key(platform::Control& target, const std::string& key) {
  auto* widget = reach<QWidget>(target);
  if (widget == nullptr) {
    logic_.key(target, key);
    return;
  }
  const QKeyCombination combination = keyOf(key);
  stroke(*widget, combination.key(), {}, combination.keyboardModifiers());
  settle();
}

void WidgetHands::leave(platform::ComboBox& box) {
  // A box that has been hidden meanwhile has lost the keyboard already.
  auto* widget = qobject_cast<QComboBox*>(find(box));
  if (widget == nullptr || !widget->isVisible() || !widget->hasFocus()) return;
  widget->clearFocus();
  settle();
}

}  // namespace stage
