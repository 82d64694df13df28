#include "desktop/keyboard_focus.h"

#include <QApplication>
#include <QStackedWidget>

namespace desktop {
namespace {

QWidget* pageOf(const QWidget& widget) {
  QWidget* page = widget.parentWidget();
  while (page != nullptr && !page->isWindow() &&
         qobject_cast<QStackedWidget*>(page->parentWidget()) == nullptr) {
    page = page->parentWidget();
  }
  return page;
}

}  // namespace

bool handFocusToPage(const QWidget& widget) {
  const QWidget* focused = QApplication::focusWidget();
  if (focused != &widget && !widget.isAncestorOf(focused)) return false;
  if (QWidget* page = pageOf(widget)) page->setFocus();
  return true;
}

void takeFocusFromPage(QWidget& widget) {
  if (widget.isVisible() && QApplication::focusWidget() == pageOf(widget)) widget.setFocus();
}

}  // namespace desktop
