#include "widgets/effort_views.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "model/time_value.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

constexpr double headroom = 14;  // above the bars, for the knob and the announcements' marks
constexpr double slimmest = 2;   // px of a bar's width
constexpr double knob = 5;       // radius of the present place's mark
constexpr double warned = 4;     // and of that above a step whose announcements are too long

QString tipOf(const ProfileStep& step) {
  QString tip = toQt(step.kind) + QStringLiteral(" · ") + toQt(model::formatSeconds(step.seconds));
  if (step.excess > 0) {
    tip += QStringLiteral("\nLes annonces durent %1 s de plus que la séquence.").arg(step.excess);
  }
  return tip;
}

}  // namespace

EffortChip::EffortChip(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void EffortChip::show(model::EffortFamily family, bool any) {
  if (family_ == family && any_ == any) return;
  family_ = family;
  any_ = any;
  update();
}

QSize EffortChip::sizeHint() const {
  return {dp(this, px_ * 0.36), dp(this, px_)};
}

void EffortChip::paintEvent(QPaintEvent*) {
  if (!any_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(familyColour(QGuiApplication::palette(), family_));
  const double h = std::min(height(), dp(this, px_));
  painter.drawRoundedRect(QRectF(0, (height() - h) / 2, width(), h), width() * 0.3, width() * 0.3);
}

SequenceBar::SequenceBar(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SequenceBar::show(model::EffortFamily family, double share) {
  const double shown = std::clamp(share, 0.0, 1.0);
  if (family_ == family && share_ == shown) return;
  family_ = family;
  share_ = shown;
  update();
}

QSize SequenceBar::sizeHint() const {
  return {dp(this, 200), dp(this, 14)};
}

void SequenceBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double radius = height() / 2.0;
  painter.setBrush(QGuiApplication::palette().color(role::line));
  painter.drawRoundedRect(QRectF(rect()), radius, radius);
  if (share_ <= 0) return;
  painter.setBrush(familyColour(QGuiApplication::palette(), family_));
  painter.setClipRect(QRectF(0, 0, width() * share_, height()));
  painter.drawRoundedRect(QRectF(rect()), radius, radius);
}

SessionProfile::SessionProfile(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void SessionProfile::setSteps(std::vector<ProfileStep> steps) {
  if (steps == steps_) return;
  steps_ = std::move(steps);
  layOut();
  update();
}

void SessionProfile::setPlace(int step, double seconds) {
  if (place_ == step && placeSeconds_ == seconds) return;
  const QRect before = markRect();
  const bool onward = std::exchange(place_, step) != step;
  placeSeconds_ = seconds;
  if (onward) {
    update();
  } else {
    update(before | markRect());
  }
}

double SessionProfile::markX() const {
  const auto at = static_cast<std::size_t>(place_);
  const double share = steps_[at].seconds > 0 ? std::min(1.0, placeSeconds_ / steps_[at].seconds) : 0;
  return std::clamp(bars_[at].left() + bars_[at].width() * share, 1.0 * dp(this, knob),
                    1.0 * width() - dp(this, knob));
}

QRect SessionProfile::markRect() const {
  if (place_ < 0 || place_ >= static_cast<int>(bars_.size())) return {};
  const int half = dp(this, knob) + 2;
  return {static_cast<int>(markX()) - half, 0, 2 * half, height()};
}

void SessionProfile::selectRow(int row) {
  if (selectedRow_ == row) return;
  selectedRow_ = row;
  update();
}

void SessionProfile::setClickable(bool clickable) {
  clickable_ = clickable;
  setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

QSize SessionProfile::sizeHint() const {
  return {dp(this, 400), dp(this, 118)};
}

QSize SessionProfile::minimumSizeHint() const {
  return {dp(this, 100), dp(this, 50)};
}

void SessionProfile::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOut();
}

void SessionProfile::layOut() {
  bars_.clear();
  const double total =
      std::accumulate(steps_.begin(), steps_.end(), 0.0,
                      [](double sum, const ProfileStep& step) { return sum + step.seconds; });
  const double top = dp(this, headroom);
  const double full = height() - top;
  const auto timed = std::count_if(steps_.begin(), steps_.end(), [](const auto& s) { return s.seconds > 0; });
  // Each timed bar has the least width; the durations share only what is left.
  const double room = width() - slimmest * static_cast<double>(timed);
  double x = 0;
  for (const ProfileStep& step : steps_) {
    if (step.seconds <= 0) {
      bars_.emplace_back(x, 0, 0, 0);
      continue;
    }
    const double w = slimmest + std::max(0.0, room) * step.seconds / std::max(1.0, total);
    const double h = full * model::effortHeight(model::effortFamily(step.kind), step.target) / 100;
    bars_.emplace_back(x, height() - h, w, h);
    x += w;
  }
}

// The marks are wider than the bars of short steps, and it is about these that they warn.
int SessionProfile::stepAt(const QPointF& point) const {
  for (std::size_t i = 0; point.y() < dp(this, headroom) && i < bars_.size(); ++i) {
    const double away = std::abs(point.x() - bars_[i].center().x());
    if (steps_[i].excess > 0 && away <= dp(this, warned)) return static_cast<int>(i);
  }
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    if (point.x() >= bars_[i].left() && point.x() < bars_[i].right()) return static_cast<int>(i);
  }
  return -1;
}

void SessionProfile::mousePressEvent(QMouseEvent* event) {
  const int step = stepAt(event->position());
  if (clickable_ && step >= 0) {
    emit rowPressed(steps_[static_cast<std::size_t>(step)].row);
  } else {
    event->ignore();
  }
}

bool SessionProfile::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const int step = stepAt(help->pos());
  if (step < 0) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help->globalPos(), tipOf(steps_[static_cast<std::size_t>(step)]), this);
  }
  return true;
}

void SessionProfile::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double gap = width() > dp(this, 400) ? 1.5 : 0.5;
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    const QRectF& bar = bars_[i];
    const QColor colour = familyColour(QGuiApplication::palette(), model::effortFamily(steps_[i].kind));
    const bool done = static_cast<int>(i) < place_;
    painter.setOpacity(done ? 0.35 : 1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    if (steps_[i].seconds > 0) {
      const double space = bar.width() > 3 * gap ? gap : 0;
      const double radius = std::min<double>(dp(this, 3), bar.width() / 3);
      painter.drawRoundedRect(bar.adjusted(0, 0, -space, 0), radius, radius);
    } else if (steps_[i].kind == "Annonce Vocale") {
      const double d = dp(this, 4);
      painter.drawPolygon(
          QPolygonF{{bar.left() - d, 1.0}, {bar.left() + d, 1.0}, {bar.left(), 1.0 + 1.6 * d}});
    }
    painter.setOpacity(1.0);
    if (steps_[i].excess > 0) {
      painter.setBrush(QGuiApplication::palette().color(role::warning));
      painter.drawEllipse(QPointF(bar.center().x(), dp(this, warned + 1)), dp(this, warned),
                          dp(this, warned));
    }
    if (selectedRow_ > 0 && steps_[i].row == selectedRow_ && steps_[i].seconds > 0) {
      painter.setPen(QPen(QGuiApplication::palette().color(role::text), dp(this, 2)));
      painter.setBrush(Qt::NoBrush);
      const double top = dp(this, headroom - 4);
      painter.drawRoundedRect(QRectF(bar.left(), top, std::max(bar.width() - 1, 4.0), height() - top - 1), 3,
                              3);
    }
  }
  if (place_ < 0 || place_ >= static_cast<int>(bars_.size())) return;
  const double x = markX();
  painter.setPen(QPen(QGuiApplication::palette().color(role::text), dp(this, 2.5)));
  painter.drawLine(QPointF(x, dp(this, 8)), QPointF(x, height()));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QGuiApplication::palette().color(role::text));
  painter.drawEllipse(QPointF(x, dp(this, knob + 1)), dp(this, knob), dp(this, knob));
}

ZoneBand::ZoneBand(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ZoneBand::show(const model::HeartZone& zone, const QColor& colour) {
  if (zone_ == zone && colour_ == colour) return;
  zone_ = zone;
  colour_ = colour;
  update();
}

QSize ZoneBand::sizeHint() const {
  return {dp(this, 160), dp(this, 9)};
}

void ZoneBand::paintEvent(QPaintEvent*) {
  constexpr double lowest = 40;
  constexpr double highest = 220;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double radius = height() / 2.0;
  painter.setBrush(QGuiApplication::palette().color(role::line));
  painter.drawRoundedRect(QRectF(rect()), radius, radius);
  if (zone_.to <= zone_.from) return;
  const auto x = [&](double beats) {
    return width() * (std::clamp(beats, lowest, highest) - lowest) / (highest - lowest);
  };
  painter.setBrush(colour_);
  painter.drawRoundedRect(
      QRectF(x(zone_.from), 0, std::max(x(zone_.to) - x(zone_.from), 1.0 * height()), height()), radius,
      radius);
}

}  // namespace widgets
