#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QScreen>
#include <QWindow>

#include "desktop/window_scale.h"

namespace desktop {

using widgets::ThemeMode;

namespace {

constexpr QSize design(1280, 800);

}  // namespace

MainWindow::MainWindow(ThemeMode mode) : mode_(mode) {
  setProperty("scale", 1.0);
  setCentralWidget(&pages_);
  setMinimumSize(design * smallestScale);
  setWindowIcon(QIcon(QStringLiteral(":/ventoria/icons/ventoria.svg")));
  resize(design);
  restyle();
}

void MainWindow::addPage(QWidget* page) {
  pages_.addWidget(page);
  scaleContents(*page, scale_);
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

void MainWindow::showFitting() {
  fitScreen();
  show();
  windowHandle()->installEventFilter(this);
}

void MainWindow::fitScreen() {
  const QMargins frame = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
  const QRect room = screen()->availableGeometry();
  const QSize largest = room.marginsRemoved(frame).size();
  if (width() <= largest.width() && height() <= largest.height()) return;
  resize(size().boundedTo(largest));
  move(room.topLeft());
}

// The size of the frame is known only once the window manager has put it around the window.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == windowHandle() && event->type() == QEvent::Expose) {
    watched->removeEventFilter(this);
    fitScreen();
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::restyle() {
  const double scale = fittingScale(size(), design);
  if (scale == scale_) return;
  scale_ = scale;
  scaleWindow(*this, pages_, mode_, scale);
  emit rescaled();
}

bool MainWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowUnblocked) emit unblocked();
  return QMainWindow::event(event);
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
