#include "widgets/chronometer.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "widgets/accessible_faces.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

constexpr int digitSize = 210;         // a digit is then a fifth of the window high
constexpr double colonWidth = 0.24;    // of the font's size; narrower than the font's own colon
constexpr double digitsHeight = 0.86;  // of the font's size; digits have no descenders

int textWidth(const QFont& font, const QString& text) {
  return QFontMetrics(font).horizontalAdvance(text);
}

}  // namespace

ChronoDigits::ChronoDigits(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void ChronoDigits::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  announceNewText(*this);
  update();
}

void ChronoDigits::setLeading(bool leading) {
  if (std::exchange(leading_, leading) == leading) return;
  updateGeometry();
  update();
}

void ChronoDigits::setSize(int size) {
  if (std::exchange(size_, size) == size) return;
  updateGeometry();
  update();
}

QSize ChronoDigits::sizeHint() const {
  return sizeAt(size_ > 0 ? size_ : digitSize);
}

QSize ChronoDigits::sizeAt(int size) const {
  const QFont font = numberFont(this, size);
  const double colon = leading_ ? 0 : font.pixelSize() * colonWidth;
  return {textWidth(font, QStringLiteral("00")) + static_cast<int>(colon),
          static_cast<int>(font.pixelSize() * digitsHeight)};
}

QSize ChronoDigits::minimumSizeHint() const {
  return sizeAt(digitSize) / 3;
}

void ChronoDigits::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont font = numberFont(this, size_ > 0 ? size_ : digitSize);
  const QSize hint = sizeHint();
  const double shrink = std::min(
      {1.0, static_cast<double>(width()) / hint.width(), static_cast<double>(height()) / hint.height()});
  font.setPixelSize(std::max(8, static_cast<int>(font.pixelSize() * shrink)));
  painter.setFont(font);
  const QColor bright = QGuiApplication::palette().color(role::text);
  const bool dim = leading_ && text_ == QLatin1String("00");
  painter.setPen(dim ? mixed(QGuiApplication::palette().color(role::ground), bright,
                             isDark(QGuiApplication::palette()) ? 0.38 : 0.50)
                     : bright);
  // Centred by the outline of a round digit, which is higher than the font's digit height.
  const QRect zero = QFontMetrics(font).tightBoundingRect(QStringLiteral("0"));
  const int baseline = (height() - zero.height()) / 2 - zero.top();
  if (!leading_) painter.drawText(0, baseline, QStringLiteral(":"));
  painter.drawText(QPointF(leading_ ? 0 : font.pixelSize() * colonWidth, baseline), text_);
}

CountdownRing::CountdownRing(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CountdownRing::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  announceNewText(*this);
  update();
}

void CountdownRing::setShare(double share) {
  const double shown = std::clamp(share, 0.0, 1.0);
  if (share_ == shown) return;
  share_ = shown;
  update();
}

QSize CountdownRing::minimumSizeHint() const {
  return {dp(this, 180), dp(this, 180)};
}

void CountdownRing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min({width() - 4, height() - 4, dp(this, 326)});
  const double stroke = side * 0.05;
  QRectF circle(0, 0, side - stroke, side - stroke);
  circle.moveCenter(QRectF(rect()).center());
  painter.setPen(QPen(QGuiApplication::palette().color(role::line), stroke));
  painter.drawEllipse(circle);

  painter.setPen(QPen(QGuiApplication::palette().color(role::accent), stroke, Qt::SolidLine, Qt::RoundCap));
  if (share_ > 0) painter.drawArc(circle, 90 * 16, static_cast<int>(-share_ * 360 * 16));

  QFont font = numberFont(this, 10);
  font.setPixelSize(std::max(8, static_cast<int>(side * 0.52)));
  painter.setFont(font);
  painter.setPen(QGuiApplication::palette().color(role::text));
  const QRect digits = QFontMetrics(font).tightBoundingRect(text_);
  const QPointF centre = circle.center();
  painter.drawText(QPointF(centre.x() - digits.center().x(), centre.y() - digits.center().y()), text_);
}

}  // namespace widgets
