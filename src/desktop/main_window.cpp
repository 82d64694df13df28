#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QStackedLayout>
#include <algorithm>
#include <cmath>

#include "desktop/picture.h"

namespace desktop {
namespace {

constexpr double designWidth = 1280;
constexpr double designHeight = 800;
constexpr double step = 0.05;  // a new style sheet for every pixel of a drag would stutter

// A layout's own lengths, remembered at the first meeting, at a scale.
void scaleLayout(QLayout& layout, double scale) {
  if (!layout.property("design").isValid()) {
    const QMargins margins = layout.contentsMargins();
    QVariantList lengths{margins.left(), margins.top(), margins.right(), margins.bottom()};
    if (const auto* grid = qobject_cast<QGridLayout*>(&layout)) {
      lengths << grid->horizontalSpacing() << grid->verticalSpacing();
    } else {
      lengths << layout.spacing() << layout.spacing();
    }
    layout.setProperty("design", lengths);
  }
  const QVariantList lengths = layout.property("design").toList();
  const auto length = [&](qsizetype i) { return static_cast<int>(std::lround(lengths[i].toInt() * scale)); };
  layout.setContentsMargins(length(0), length(1), length(2), length(3));
  if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
    grid->setHorizontalSpacing(length(4));
    grid->setVerticalSpacing(length(5));
  } else {
    layout.setSpacing(length(4));
  }
}

}  // namespace

MainWindow::MainWindow(ThemeMode mode) : mode_(mode) {
  setProperty("scale", 1.0);
  setCentralWidget(&pages_);
  setMinimumSize(960, 600);
  setWindowIcon(QIcon(QStringLiteral(":/ventoria/icons/ventoria.svg")));
  resize(static_cast<int>(designWidth), static_cast<int>(designHeight));
}

void MainWindow::addPage(QWidget* page) {
  pages_.addWidget(page);
  scale_ = 0;
  restyle();
}

void MainWindow::showPage(QWidget* page) {
  pages_.setCurrentWidget(page);
}

void MainWindow::setTheme(ThemeMode mode) {
  mode_ = mode;
  scale_ = 0;
  applyTheme(mode);
  restyle();
}

void MainWindow::restyle() {
  const double fitting = std::min(width() / designWidth, height() / designHeight);
  const double scale = std::max(0.7, std::floor(fitting / step + 1e-9) * step);
  if (scale == scale_) return;
  scale_ = scale;
  setProperty("scale", scale);
  setStyleSheet(themeStyleSheet(mode_, scale));
  for (QLayout* layout : pages_.findChildren<QLayout*>()) {
    if (qobject_cast<QStackedLayout*>(layout) == nullptr && layout->parentWidget() != &pages_) {
      scaleLayout(*layout, scale);
    }
  }
  for (QWidget* widget : pages_.findChildren<QWidget*>()) widget->updateGeometry();
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
