#include "stage/widget_hands.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QRadioButton>

#include "widgets/check_list.h"
#include "widgets/grid_table.h"
#include "widgets/qt_text.h"

namespace stage {
namespace {

using widgets::CheckList;
using widgets::GridTable;
using widgets::toQt;

// Lets the windows catch up with what has happened.
void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

void mouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
           Qt::MouseButtons down) {
  QMouseEvent event(type, QPointF(at), QPointF(widget.mapToGlobal(at)), button, down, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void click(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
  mouse(widget, QEvent::MouseButtonPress, at, button, button);
  mouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

// A touch elsewhere closes what has popped up.
void closeMenus() {
  for (QWidget* menu = QApplication::activePopupWidget(); menu != nullptr;
       menu = QApplication::activePopupWidget()) {
    menu->close();
  }
}

// A check box is hit on its box, the rest in the middle.
QPoint spot(const QWidget& widget) {
  const bool box = qobject_cast<const QCheckBox*>(&widget) != nullptr ||
                   qobject_cast<const QRadioButton*>(&widget) != nullptr;
  return box ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center();
}

void move(QWidget& widget, const QPoint& at) {
  // From elsewhere, so that it is a movement.
  mouse(widget, QEvent::MouseMove, at + QPoint(1, 1), Qt::NoButton, Qt::NoButton);
  mouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
}

void stroke(QWidget& widget, int code, const QString& text = {}) {
  QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &down);
  QKeyEvent up(QEvent::KeyRelease, code, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &up);
}

int keyCode(const std::string& key) {
  if (key == "Enter") return Qt::Key_Return;
  return key.starts_with("F") ? Qt::Key_F1 + std::stoi(key.substr(1)) - 1 : 0;
}

QPoint cellSpot(GridTable& table, int row, int column) {
  table.gridModel()->flush();
  table.scrollTo(table.gridModel()->index(row - 1, column - 1));
  return table.cellRect(row, column).center();
}

}  // namespace

QWidget* WidgetHands::touchable(const platform::Component& component) const {
  closeMenus();
  windows_->refresh();
  settle();
  QWidget* page = windows_->page(component.form());
  if (page == nullptr) return nullptr;
  auto* widget = page->findChild<QWidget*>(toQt(component.name()));
  if (widget == nullptr || !widget->isVisible()) return nullptr;
  // A platform without a screen gives the keyboard back to nobody when a list closes.
  if (QApplication::focusWidget() == nullptr) {
    widget->activateWindow();
    settle();
  }
  return widget;
}

void WidgetHands::press(platform::Component& target) {
  if (dynamic_cast<platform::MenuItem*>(&target) != nullptr) {
    QWidget* page = windows_->page(target.form());
    auto* action = page != nullptr ? page->findChild<QAction*>(toQt(target.name())) : nullptr;
    closeMenus();
    action != nullptr ? action->trigger() : direct_.press(target);
  } else if (QWidget* widget = touchable(target)) {
    click(*widget, spot(*widget));
  } else {
    direct_.press(target);
  }
  settle();
}

void WidgetHands::doublePress(platform::Control& target) {
  QWidget* widget = touchable(target);
  if (widget == nullptr) {
    direct_.doublePress(target);
    return;
  }
  click(*widget, spot(*widget));
  mouse(*widget, QEvent::MouseButtonDblClick, spot(*widget), Qt::LeftButton, Qt::LeftButton);
  settle();
}

void WidgetHands::hover(platform::Control& target) {
  QWidget* widget = touchable(target);
  if (widget == nullptr) {
    direct_.hover(target);
    return;
  }
  // A container is met at its edge, where nothing lies on it.
  const bool holds = target.kind() == platform::ControlKind::Frame;
  mouse(*widget, QEvent::MouseMove, holds ? QPoint(2, 2) : spot(*widget), Qt::NoButton, Qt::NoButton);
  settle();
}

void WidgetHands::tick(platform::Control& box, int value) {
  auto* widget = qobject_cast<QAbstractButton*>(touchable(box));
  // A person cannot make a box grey, nor put an option out; a script can.
  if (widget == nullptr || value > 1 || (value == 0 && qobject_cast<QRadioButton*>(widget) != nullptr)) {
    direct_.tick(box, value);
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
  auto* widget = qobject_cast<QComboBox*>(touchable(list));
  if (widget == nullptr) {
    direct_.pick(list, line);
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
  QWidget* widget = touchable(box);
  auto* combo = qobject_cast<QComboBox*>(widget);
  auto* edit = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(widget);
  if (edit == nullptr) {
    direct_.type(box, text);
    return;
  }
  // A drop-down list has the keyboard itself, and hands it on to its line.
  widget->setFocus();
  edit->selectAll();
  stroke(*widget, Qt::Key_Backspace);
  if (!text.empty()) stroke(*widget, 0, toQt(text));
  stroke(*widget, Qt::Key_Return);
  settle();
}

void WidgetHands::scroll(platform::ScrollBar& bar, int value) {
  auto* widget = qobject_cast<QAbstractSlider*>(touchable(bar));
  if (widget == nullptr) {
    direct_.scroll(bar, value);
    return;
  }
  widget->setSliderPosition(value);
  widget->triggerAction(QAbstractSlider::SliderMove);
  settle();
}

void WidgetHands::cell(platform::Grid& grid, int row, int column, platform::MouseButton button) {
  auto* table = qobject_cast<GridTable*>(touchable(grid));
  if (table == nullptr) {
    direct_.cell(grid, row, column, button);
    return;
  }
  const QPoint at = cellSpot(*table, row, column);
  click(*table->viewport(), at, button == platform::MouseButton::Left ? Qt::LeftButton : Qt::RightButton);
  settle();
}

void WidgetHands::hoverCell(platform::Grid& grid, int row, int column) {
  auto* table = qobject_cast<GridTable*>(touchable(grid));
  if (table == nullptr) {
    direct_.hoverCell(grid, row, column);
    return;
  }
  move(*table->viewport(), cellSpot(*table, row, column));
  settle();
}

void WidgetHands::checkRow(platform::Grid& grid, int row, bool on) {
  auto* list = qobject_cast<CheckList*>(touchable(grid));
  if (list == nullptr || row < 1 || row > grid.rowCount() || grid.checked(row) == on) {
    direct_.checkRow(grid, row, on);
  } else {
    (void)cellSpot(*list, row, 1);
    click(*list->viewport(), list->boxRect(row).center());
  }
  settle();
}

void WidgetHands::key(platform::Control& target, const std::string& key) {
  QWidget* widget = touchable(target);
  if (widget == nullptr) {
    direct_.key(target, key);
    return;
  }
  stroke(*widget, keyCode(key));
  settle();
}

void WidgetHands::leave(platform::ComboBox& box) {
  auto* widget = qobject_cast<QComboBox*>(touchable(box));
  if (widget == nullptr || !widget->hasFocus()) return;
  widget->clearFocus();
  settle();
}

}  // namespace stage
