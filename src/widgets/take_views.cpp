#include "widgets/take_views.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "model/take.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

QColor themed(QPalette::ColorRole role) {
  return QGuiApplication::palette().color(role);
}

}  // namespace

TakeRing::TakeRing(QWidget* parent) : QWidget(parent) {
  setAccessibleName(QStringLiteral("Durée de l'Annonce"));
}

void TakeRing::show(int seconds, Mood mood) {
  if (seconds_ == seconds && mood_ == mood) return;
  seconds_ = seconds;
  mood_ = mood;
  setAccessibleDescription(QStringLiteral("%1 s").arg(seconds));
  update();
}

QSize TakeRing::sizeHint() const {
  return {dp(this, 250), dp(this, 250)};
}

QSize TakeRing::minimumSizeHint() const {
  return {dp(this, 150), dp(this, 150)};
}

void TakeRing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min({width() - 4, height() - 4, dp(this, 320)});
  const double stroke = side * 0.055;
  QRectF circle(0, 0, side - stroke, side - stroke);
  circle.moveCenter(QRectF(rect()).center());
  painter.setPen(QPen(themed(role::line), stroke));
  painter.drawEllipse(circle);

  const QColor colour = themed(mood_ == Mood::Recording ? role::wrong : role::accent);
  const double share = std::clamp(seconds_ / static_cast<double>(model::longestTake), 0.0, 1.0);
  painter.setPen(QPen(colour, stroke, Qt::SolidLine, Qt::RoundCap));
  if (share > 0) painter.drawArc(circle, 90 * 16, static_cast<int>(-share * 360 * 16));

  QFont font = numberFont(this, 10);
  font.setPixelSize(std::max(8, static_cast<int>(side * 0.40)));
  painter.setFont(font);
  painter.setPen(themed(mood_ == Mood::Resting && seconds_ == 0 ? role::second : role::text));
  const QString text = QString::number(seconds_);
  const QRect digits = QFontMetrics(font).tightBoundingRect(text);
  const QPointF centre = circle.center() - QPointF(0, side * 0.03);
  painter.drawText(QPointF(centre.x() - digits.center().x(), centre.y() - digits.center().y()), text);

  painter.setFont(sansFont(this, 16 * side / dp(this, 250)));
  painter.setPen(themed(role::second));
  painter.drawText(QRectF(circle.left(), circle.center().y() + side * 0.20, circle.width(), side * 0.12),
                   Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("/ %1 s").arg(model::longestTake));
}

Waveform::Waveform(QWidget* parent) : QWidget(parent) {}

void Waveform::setPeaks(std::vector<float> peaks) {
  peaks_ = std::move(peaks);
  update();
}

void Waveform::setHeard(double share) {
  if (heard_ == share) return;
  heard_ = share;
  update();
}

QSize Waveform::sizeHint() const {
  return {dp(this, 300), dp(this, 120)};
}

QSize Waveform::minimumSizeHint() const {
  return {dp(this, 80), dp(this, 28)};
}

void Waveform::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double bar = std::max(2, dp(this, 3));
  const double step = bar + std::max(1, dp(this, 2));
  const int bars = std::max(1, static_cast<int>(width() / step));
  const double left = (width() - bars * step + step - bar) / 2;
  for (int i = 0; i < bars; ++i) {
    float peak = 0;
    const std::size_t first = peaks_.size() * static_cast<std::size_t>(i) / static_cast<std::size_t>(bars);
    const std::size_t past = peaks_.size() * static_cast<std::size_t>(i + 1) / static_cast<std::size_t>(bars);
    for (std::size_t p = first; p < std::max(past, first + 1) && p < peaks_.size(); ++p) {
      peak = std::max(peak, peaks_[p]);
    }
    const bool heard = (i + 0.5) / bars < heard_;
    painter.setBrush(peaks_.empty() ? themed(role::line)
                     : heard        ? themed(role::accent)
                                    : mixed(themed(role::card), themed(role::accent), 0.55));
    const double high = std::max(bar, std::sqrt(static_cast<double>(peak)) * height());
    painter.drawRoundedRect(QRectF(left + i * step, (height() - high) / 2, bar, high), bar / 2, bar / 2);
  }
}

TimeBar::TimeBar(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TimeBar::setShare(double share) {
  if (share_ == share) return;
  share_ = share;
  update();
}

QSize TimeBar::sizeHint() const {
  return {dp(this, 200), dp(this, 8)};
}

void TimeBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = height() / 2.0;
  QPainterPath groove;
  groove.addRoundedRect(rect(), radius, radius);
  painter.fillPath(groove, themed(role::line));
  painter.setClipPath(groove);
  painter.fillRect(QRectF(0, 0, width() * std::clamp(share_, 0.0, 1.0), height()), themed(role::accent));
}

}  // namespace widgets
