#include "desktop/step_button.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "desktop/picture.h"
#include "desktop/theme.h"

namespace desktop {

StepButton::StepButton(QWidget* parent) : QPushButton(parent) {}

QSize StepButton::sizeHint() const {
  const bool tile = property("large").toString() == QLatin1String("tile");
  return {dp(this, tile ? 400 : 200), dp(this, tile ? 88 : 72)};
}

QSize StepButton::minimumSizeHint() const {
  return {dp(this, 120), sizeHint().height()};
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
  const int icon = dp(this, 26);
  const int gap = dp(this, 12);
  const QRect room = rect().adjusted(dp(this, 12), dp(this, 6), -dp(this, 12), -dp(this, 6));
  // A line break where the text is wider than its place; the drawing and the text stand together, centred.
  const QString caption = text().replace(QLatin1String("&&"), QLatin1String("&"));
  const QRect words = QFontMetrics(font).boundingRect(QRect(0, 0, room.width() - icon - gap, room.height()),
                                                      Qt::AlignLeft | Qt::TextWordWrap, caption);
  const int left = room.left() + std::max(0, (room.width() - icon - gap - words.width()) / 2);
  QPixmap picture = drawing(picture_, QSize(icon, icon), palette, devicePixelRatioF());
  if (filled || !isEnabled()) {
    QPainter tint(&picture);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(QRect(0, 0, icon, icon), ink);
  }
  painter.drawPixmap(left, room.center().y() - icon / 2, picture);
  painter.setFont(font);
  painter.setPen(ink);
  painter.drawText(QRect(left + icon + gap, room.top(), room.right() - left - icon - gap + 1, room.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, caption);
}

}  // namespace desktop
