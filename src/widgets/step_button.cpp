#include "widgets/step_button.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "widgets/picture.h"
#include "widgets/theme.h"

namespace widgets {
namespace {

// The size of a wrapped text, as narrow as possible without another line, so that no word stands alone.
QSize balanced(const QFontMetrics& metrics, const QString& text, int width) {
  const auto laid = [&](int within) {
    return metrics.boundingRect(QRect(0, 0, within, 10000), Qt::AlignLeft | Qt::TextWordWrap, text);
  };
  const int high = laid(width).height();
  int narrow = width;
  for (const int step = 4; narrow > step && laid(narrow - step).height() == high &&
                           laid(narrow - step).width() <= narrow - step;) {
    narrow -= step;
  }
  return {narrow, high};
}

}  // namespace

StepButton::StepButton(QWidget* parent) : QPushButton(parent) {}

bool StepButton::isTile() const {
  return property("large").toString() == QLatin1String("tile");
}

QSize StepButton::sizeHint() const {
  const bool tile = isTile();
  return {dp(this, tile ? 400 : 200), dp(this, tile ? 88 : 72)};
}

QSize StepButton::minimumSizeHint() const {
  return {dp(this, 120), sizeHint().height()};
}

QString StepButton::caption() const {
  return text().replace(QLatin1String("&&"), QLatin1String("&"));
}

int StepButton::iconSide() const {
  return dp(this, isTile() ? 34 : 26);
}

QRect StepButton::textRoom() const {
  const int icon = iconSide() + dp(this, isTile() ? 16 : 12);
  return rect().adjusted(dp(this, 12) + icon, dp(this, 6), -dp(this, 12), -dp(this, 6));
}

bool StepButton::textFits() const {
  const QSize words =
      balanced(QFontMetrics(sansFont(this, 15, QFont::DemiBold)), caption(), textRoom().width());
  return words.width() <= textRoom().width() && words.height() <= textRoom().height();
}

void StepButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);

  const QPalette palette = QGuiApplication::palette();
  const bool filled = isEnabled() && property("look").toString() == QLatin1String("primary");
  const QColor ink = palette.color(!isEnabled() ? role::second
                                   : filled     ? QPalette::HighlightedText
                                                : role::text);
  const QFont font = sansFont(this, 15, QFont::DemiBold);
  const int icon = iconSide();
  const QRect room = textRoom();
  const QSize words = balanced(QFontMetrics(font), caption(), room.width());
  const int centred = std::max(0, (room.width() - words.width()) / 2);
  const int inset = property("inList").toBool() ? std::min(dp(this, 16), centred) : centred;
  QPixmap picture = drawing(picture_, QSize(icon, icon), palette, devicePixelRatioF());
  if (filled || !isEnabled()) {
    QPainter tint(&picture);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(QRect(0, 0, icon, icon), ink);
  }
  painter.drawPixmap(dp(this, 12) + inset, room.center().y() - icon / 2, picture);
  painter.setFont(font);
  painter.setPen(ink);
  painter.drawText(QRect(room.left() + inset, room.top(), words.width(), room.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, caption());
}

}  // namespace widgets
