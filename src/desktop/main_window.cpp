#include "desktop/main_window.h"

#include <QCloseEvent>

#include "desktop/window_scale.h"

namespace desktop {
namespace {

constexpr QSize design(1280, 800);

}  // namespace

MainWindow::MainWindow(ThemeMode mode) : mode_(mode) {
  setProperty("scale", 1.0);
  setCentralWidget(&pages_);
  setMinimumSize(design / 2);  // a small screen at 200 %
  setWindowIcon(QIcon(QStringLiteral(":/ventoria/icons/ventoria.svg")));
  resize(design);
}

void MainWindow::addPage(QWidget* page) {
  pages_.addWidget(page);
  scale_ = 0;
  restyle();
}

void MainWindow::showPage(QWidget* page) {
  pages_.setCurrentWidget(page);
  page->setFocus();  // no control has the keyboard until the rider wants one
}

void MainWindow::setTheme(ThemeMode mode) {
  mode_ = mode;
  scale_ = 0;
  restyle();
}

void MainWindow::restyle() {
  const double scale = fittingScale(size(), design);
  if (scale == scale_) return;
  scale_ = scale;
  scaleWindow(*this, pages_, mode_, scale);
  emit rescaled();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  restyle();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!closeAsked_) {
    QMainWindow::closeEvent(event);
    return;
  }
  event->ignore();
  closeAsked_();
}

}  // namespace desktop
