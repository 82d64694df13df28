#include "widgets/fade_away.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPropertyAnimation>

namespace widgets {
namespace {

constexpr int duration = 180;  // ms

}  // namespace

FadeAway::FadeAway(QWidget& panel) : QObject(&panel), panel_(panel) {
  panel.installEventFilter(this);
}

bool FadeAway::eventFilter(QObject* watched, QEvent* event) {
  const bool leaves = watched == &panel_ && event->type() == QEvent::Hide && !event->spontaneous();
  if (!leaves || !panel_.parentWidget()->isVisible() || !QApplication::isEffectEnabled(Qt::UI_General)) {
    return false;
  }
  // The panel itself is hidden at once. A picture of it fades, and lets the mouse through.
  auto* ghost = new QLabel(panel_.parentWidget());
  ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
  ghost->setPixmap(panel_.grab());
  ghost->setGeometry(panel_.geometry());
  auto* effect = new QGraphicsOpacityEffect(ghost);
  ghost->setGraphicsEffect(effect);
  auto* fade = new QPropertyAnimation(effect, "opacity", ghost);
  fade->setDuration(duration);
  fade->setStartValue(1.0);
  fade->setEndValue(0.0);
  connect(fade, &QPropertyAnimation::finished, ghost, &QObject::deleteLater);
  ghost->show();
  fade->start();
  return false;
}

}  // namespace widgets
