#include "widgets/fit_label.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>

#include "widgets/accessible_faces.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

constexpr int smallest = 14;
constexpr int unitSize = 20;

bool allDigits(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

}  // namespace

FitLabel::FitLabel(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void FitLabel::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  announceNewText(*this);
  updateGeometry();
  update();
}

QSize FitLabel::sizeHint() const {
  const QFontMetrics metrics(numberFont(this, px_));
  return {metrics.horizontalAdvance(text_) + dp(this, 4), metrics.height()};
}

QSize FitLabel::minimumSizeHint() const {
  return {dp(this, 40), dp(this, std::min(px_, 40))};
}

QFont FitLabel::fitted(const QRect& into) const {
  for (int px = px_; px > smallest; px -= 2) {
    // The largest size at which the text fits, if need be on several lines.
    if (const QFont font = numberFont(this, px); fits(font, into)) return font;
  }
  return numberFont(this, smallest);
}

bool FitLabel::fits(const QFont& font, const QRect& into) const {
  const QRect needed = QFontMetrics(font).boundingRect(into, Qt::TextWordWrap, text_);
  return needed.width() <= into.width() && needed.height() <= into.height();
}

bool FitLabel::textFits() const {
  return text_.isEmpty() || fits(fitted(textRoom()), textRoom());
}

QRect FitLabel::textRoom() const {
  if (unit_.isEmpty()) return rect();
  const int unit = QFontMetrics(sansFont(this, unitSize)).horizontalAdvance(QLatin1Char(' ') + unit_);
  return rect().adjusted(0, 0, -unit - dp(this, 6), 0);
}

void FitLabel::paintEvent(QPaintEvent*) {
  if (text_.isEmpty()) return;
  QPainter painter(this);
  const QRect place = textRoom();
  painter.setFont(fitted(place));
  painter.setPen(QGuiApplication::palette().color(tone_ == QLatin1String("wrong")    ? role::wrong
                                                  : tone_ == QLatin1String("second") ? role::second
                                                                                     : role::text));
  QRect drawn;
  const Qt::Alignment side = centred_ ? Qt::AlignHCenter : Qt::AlignLeft;
  painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextWordWrap, text_, &drawn);
  if (unit_.isEmpty()) return;
  const int baseline = drawn.bottom() - painter.fontMetrics().descent();
  painter.setFont(sansFont(this, unitSize));
  painter.setPen(QGuiApplication::palette().color(role::second));
  painter.drawText(drawn.right() + dp(this, 6), baseline, QLatin1Char(' ') + unit_);
}

HeartTarget::HeartTarget(QWidget* parent) : FitLabel(parent) {
  setPx(58);
}

void HeartTarget::setPointSize(int points) {
  pointSize_ = points;
  update();
}

void HeartTarget::paintEvent(QPaintEvent* event) {
  const bool message = pointSize_ == 18;
  const bool beats = !message && allDigits(text()) && text() != QLatin1String("000");
  setPx(message ? 26 : 58);
  setTone(message ? QStringLiteral("second") : QStringLiteral("wrong"));
  setUnit(beats ? QStringLiteral("bpm") : QString());
  FitLabel::paintEvent(event);
}

}  // namespace widgets
