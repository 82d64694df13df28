#include "widgets/volume_gauge.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

#include "widgets/theme.h"

namespace widgets {
namespace {

struct Stretch {
  int to;  // %
  QPalette::ColorRole colour;
};

constexpr std::array<Stretch, 4> stretches{
    {{50, role::wrong}, {75, role::warning}, {86, role::good}, {100, role::warning}}};

}  // namespace

VolumeGauge::VolumeGauge(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void VolumeGauge::setPercent(int percent) {
  percent_ = std::clamp(percent, 0, 100);
  update();
}

QSize VolumeGauge::sizeHint() const {
  return {dp(this, 200), dp(this, 26)};
}

void VolumeGauge::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPalette palette = QGuiApplication::palette();
  const double knob = dp(this, 7);
  const double high = dp(this, 8);
  const QRectF groove(knob, height() - high, width() - 2 * knob, high);
  QPainterPath shape;
  shape.addRoundedRect(groove, high / 2, high / 2);
  painter.setClipPath(shape);
  double from = groove.left();
  bool before = false;
  for (const Stretch& stretch : stretches) {
    const double to = groove.left() + groove.width() * stretch.to / 100;
    const bool here = !before && percent_ < stretch.to + (stretch.to == 100 ? 1 : 0);
    before = before || here;
    // The stretch that the volume is in is bright.
    painter.fillRect(QRectF(from, groove.top(), to - from - dp(this, 2), high),
                     here ? palette.color(stretch.colour)
                          : mixed(palette.color(role::card), palette.color(stretch.colour), 0.35));
    from = to;
  }
  painter.setClipping(false);
  const double at = groove.left() + groove.width() * percent_ / 100;
  const QPointF mark[] = {{at, groove.top() - dp(this, 3)},
                          {at - knob, groove.top() - dp(this, 3) - knob * 1.5},
                          {at + knob, groove.top() - dp(this, 3) - knob * 1.5}};
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(role::text));
  painter.drawPolygon(mark, 3);
}

}  // namespace widgets
