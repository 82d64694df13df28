#include "desktop/keyboard_focus.h"

#include <QApplication>
#include <QStackedWidget>

namespace desktop {

void leaveKeyboard(const QWidget& widget) {
  const QWidget* focused = QApplication::focusWidget();
  if (focused != &widget && !widget.isAncestorOf(focused)) return;
  QWidget* page = widget.parentWidget();
  while (page != nullptr && !page->isWindow() &&
         qobject_cast<QStackedWidget*>(page->parentWidget()) == nullptr) {
    page = page->parentWidget();
  }
  if (page != nullptr) page->setFocus();
}

}  // namespace desktop
