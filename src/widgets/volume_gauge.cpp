#include "widgets/volume_gauge.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>

#include "model/volume_advice.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

constexpr auto& advices = model::volumeAdvices;

// In the order of model::Loudness.
constexpr std::array<QPalette::ColorRole, advices.size()> bandColours{role::wrong, role::warning, role::good,
                                                                      role::warning};

}  // namespace

VolumeGauge::VolumeGauge(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void VolumeGauge::setPercent(int percent) {
  const int shown = std::clamp(percent, 0, 100);
  if (percent_ == shown) return;
  percent_ = shown;
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
  const auto x = [&](int percent) { return groove.left() + groove.width() * percent / 100; };
  for (std::size_t i = 0; i < advices.size(); ++i) {
    const double from = x(advices.at(i).from);
    const double to = x(i + 1 < advices.size() ? advices.at(i + 1).from : 100);
    const QColor colour = palette.color(bandColours.at(static_cast<std::size_t>(advices.at(i).loudness)));
    // Only the part of the scale that holds the volume is bright.
    const bool here = &advices.at(i) == &model::adviceFor(percent_);
    painter.fillRect(QRectF(from, groove.top(), to - from - dp(this, 2), high),
                     here ? colour : mixed(palette.color(role::card), colour, 0.35));
  }
  painter.setClipping(false);
  const double at = x(percent_);
  const QPointF mark[] = {{at, groove.top() - dp(this, 3)},
                          {at - knob, groove.top() - dp(this, 3) - knob * 1.5},
                          {at + knob, groove.top() - dp(this, 3) - knob * 1.5}};
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(role::text));
  painter.drawPolygon(mark, 3);
}

}  // namespace widgets
