#include "stage/camera.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <filesystem>
#include <iostream>

#include "console/arguments.h"
#include "stage/audit.h"
#include "widgets/qt_text.h"

namespace stage {
namespace {

// Draws the open menus, too, which are windows of their own.
void addMenus(QPixmap& picture, const QWidget& window) {
  QPainter painter(&picture);
  for (QWidget* menu : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMenu*>(menu) == nullptr || !menu->isVisible()) continue;
    const QVariant place = menu->property("place");  // without a screen, Qt moves menus as if on a small one
    painter.drawPixmap((place.isValid() ? place.toPoint() : menu->pos()) - window.pos(), menu->grab());
  }
}

}  // namespace

void Camera::capture(const platform::Form& form, const std::string& path) {
  QWidget* window = windows_.windowOf(form);
  if (window == nullptr) throw console::CommandError(form.name() + " has no window");
  windows_.refresh();
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  QPixmap picture = window->grab();
  if (checks_) {
    for (const QString& fault : faultsOf(form, *window, picture.toImage())) {
      foundFaults_ = true;
      std::cout << std::filesystem::path(path).filename().string() << ": " << widgets::fromQt(fault) << '\n';
    }
    return;
  }
  addMenus(picture, *window);
  if (!picture.save(widgets::toQt(path))) throw console::CommandError("cannot write " + path);
}

}  // namespace stage
