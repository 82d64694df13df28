#include "desktop/form_menus.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QPushButton>
#include <algorithm>

#include "widgets/grid_table.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace desktop {

using widgets::dp;
using widgets::GridTable;
using widgets::toQt;

namespace {

using platform::Component;
using platform::MenuItem;

bool holdsOthers(const platform::Form& form, const MenuItem& item) {
  return std::any_of(form.components().begin(), form.components().end(), [&](const Component* other) {
    const auto* entry = dynamic_cast<const MenuItem*>(other);
    return entry != nullptr && entry->parent() == &item;
  });
}

// Where a menu opens, given what the rider pressed for it.
QPoint placeOf(const QMenu& menu, const QWidget* pressed) {
  const QPoint pointer = QCursor::pos();
  QPoint place;
  if (qobject_cast<const QAbstractButton*>(pressed) != nullptr) {
    place = pressed->mapToGlobal(QPoint(0, pressed->height() + dp(pressed, 6)));
  } else if (const auto* list = qobject_cast<const GridTable*>(pressed);
             list != nullptr && !list->rect().contains(list->mapFromGlobal(pointer))) {
    // Opened by a key: the pointer is elsewhere.
    const QRect cell = list->cellRect(list->pressedRow(), list->pressedColumn());
    place = list->viewport()->mapToGlobal(cell.bottomLeft() + QPoint(dp(list, 24), 0));
  } else {
    return pointer;
  }
  const QWidget* window = pressed->window();
  const int right = window->mapToGlobal(QPoint(window->width() - dp(window, 24), 0)).x();
  place.setX(std::min(place.x(), right - menu.sizeHint().width()));
  return place;
}

void selectFirst(QMenu& menu) {
  const QList<QAction*> entries = menu.actions();
  const auto first = std::find_if(entries.begin(), entries.end(), [](const QAction* entry) {
    return entry->isVisible() && entry->isEnabled() && !entry->isSeparator();
  });
  if (first != entries.end()) menu.setActiveAction(*first);
}

}  // namespace

void FormMenus::tie(const platform::Form& form, QWidget& page) {
  for (Component* component : form.components()) {
    auto* item = dynamic_cast<MenuItem*>(component);
    if (item == nullptr) continue;
    const bool root = item->parent() == nullptr;
    if (holdsOthers(form, *item)) {
      auto* menu = root ? new QMenu(&page) : menus_.value(item->parent())->addMenu(QString());
      menu->setObjectName(toQt(item->name()));
      menus_.insert(item, menu);
      tieEntry(*item, *menu->menuAction());
      tieOpeners(*item, *menu, page);
    } else if (!root) {
      QAction* action = menus_.value(item->parent())->addAction(QString());
      action->setObjectName(toQt(item->name()));
      connect(action, &QAction::triggered, this, [this, item] { input_.run([item] { item->click(); }); });
      tieEntry(*item, *action);
    }
  }
}

void FormMenus::tieEntry(MenuItem& item, QAction& action) {
  const auto refresh = [&action, &item, menu = menus_.value(&item)] {
    action.setText(toQt(item.caption.get()).replace(QLatin1Char('&'), QLatin1String("&&")));
    action.setVisible(item.visible);
    action.setEnabled(item.enabled);
    if (menu != nullptr) menu->setEnabled(item.enabled);
  };
  refresh();
  item.watch([refresh](Component&, platform::Prop) { refresh(); });
}

void FormMenus::tieOpeners(MenuItem& item, QMenu& menu, const QWidget& page) {
  // A script that drives the program may have taken the pop-ups over already.
  if (!item.popUp.handled()) {
    item.popUp.handle([this, &menu, &item] {
      popUp(menu);
      if (poppedUp_) poppedUp_(item);
    });
  }
  for (auto* button : page.findChildren<QPushButton*>(toQt(item.name()))) {
    button->setText(toQt(item.caption.get()));
    input_.listen(*button, [this, &menu] { popUp(menu); });
  }
}

void FormMenus::popUp(QMenu& menu) {
  const QPoint place = placeOf(menu, input_.lastPressed());
  menu.setProperty("place", place);  // where pictures show it, even if a small screen moves the menu
  menu.popup(place);
  if (input_.byKeyboard()) selectFirst(menu);
}

}  // namespace desktop
