#include "widgets/free_ground.h"

#include <QMouseEvent>
#include <QWidget>

namespace widgets {

FreeGround::FreeGround(QWidget& panel, const std::function<bool(const QWidget&)>& taken)
    : QObject(&panel), panel_(panel) {
  QList<QWidget*> ground{&panel};
  while (!ground.isEmpty()) {
    QWidget* widget = ground.takeLast();
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
    for (auto* inside : widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!taken(*inside)) ground.append(inside);
    }
  }
}

bool FreeGround::eventFilter(QObject* watched, QEvent* event) {
  // On a touch screen no move comes before a press.
  if (event->type() != QEvent::MouseMove && event->type() != QEvent::MouseButtonPress) return false;
  const auto* mouse = static_cast<QMouseEvent*>(event);
  const bool moves = event->type() == QEvent::MouseMove;
  // Qt passes on a move that a child has ignored: the pointer is then over that child, not over the ground.
  if (static_cast<QWidget*>(watched)->childAt(mouse->position().toPoint()) != nullptr) {
    return moves && watched == &panel_;
  }
  if (!moves || mouse->globalPosition() != pointer_) emit crossed();
  pointer_ = mouse->globalPosition();
  return false;
}

}  // namespace widgets
