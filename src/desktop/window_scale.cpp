#include "desktop/window_scale.h"

#include <QLayout>
#include <QStackedLayout>
#include <algorithm>
#include <cmath>

namespace desktop {

using widgets::ThemeMode;
using widgets::themeStyleSheet;

namespace {

constexpr double step = 0.05;  // a new style sheet for every pixel of a drag would stutter

// Scales the fixed spaces of a layout, whose design is remembered at the first call.
void scaleSpacers(QLayout& layout, double scale) {
  if (!layout.property("spacers").isValid()) {
    QVariantList sizes;
    for (int i = 0; i < layout.count(); ++i) {
      const QSpacerItem* spacer = layout.itemAt(i)->spacerItem();
      sizes << (spacer != nullptr ? spacer->sizeHint() : QSize());
    }
    layout.setProperty("spacers", sizes);
  }
  const QVariantList sizes = layout.property("spacers").toList();
  for (int i = 0; i < layout.count() && i < sizes.size(); ++i) {
    QSpacerItem* spacer = layout.itemAt(i)->spacerItem();
    if (spacer == nullptr) continue;
    const QSizePolicy policy = spacer->sizePolicy();
    const QSizeF size = QSizeF(sizes[i].toSize()) * scale;
    spacer->changeSize(static_cast<int>(std::lround(size.width())),
                       static_cast<int>(std::lround(size.height())), policy.horizontalPolicy(),
                       policy.verticalPolicy());
  }
  layout.invalidate();
}

// Scales the margins and spaces of a layout, whose design is remembered at the first call.
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
  scaleSpacers(layout, scale);
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

double fittingScale(const QSize& size, const QSize& design) {
  const double fitting = std::min(size.width() / static_cast<double>(design.width()),
                                  size.height() / static_cast<double>(design.height()));
  return std::max(smallestScale, std::floor(fitting / step + 1e-9) * step);
}

void scaleWindow(QWidget& window, QWidget& contents, ThemeMode mode, double scale) {
  window.setProperty("scale", scale);
  window.setStyleSheet(themeStyleSheet(mode, scale));
  scaleContents(contents, scale);
}

void scaleContents(QWidget& contents, double scale) {
  for (QLayout* layout : contents.findChildren<QLayout*>()) {
    if (qobject_cast<QStackedLayout*>(layout) == nullptr) scaleLayout(*layout, scale);
  }
  for (QWidget* widget : contents.findChildren<QWidget*>()) widget->updateGeometry();
}

}  // namespace desktop
