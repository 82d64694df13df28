#include "desktop/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "widgets/qt_text.h"

namespace desktop {

std::string QtClipboard::text() {
  return widgets::fromQt(QGuiApplication::clipboard()->text());
}

void QtClipboard::setText(const std::string& text) {
  QGuiApplication::clipboard()->setText(widgets::toQt(text));
}

}  // namespace desktop
