#include "widgets/movable_panel.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFrame>
#include <QMouseEvent>
#include <algorithm>

#include "widgets/look.h"
#include "widgets/theme.h"
#include "widgets/within.h"

namespace widgets {
namespace {

constexpr double floatingWidth = 440;

}  // namespace

MovablePanel::MovablePanel(QFrame& panel, QBoxLayout& home, QWidget& page)
    : QObject(&panel), panel_(panel), home_(home), page_(page), homeLook_(panel.property("look").toString()) {
  panel.installEventFilter(this);
  panel.setCursor(Qt::OpenHandCursor);
  for (QWidget* inside : panel.findChildren<QWidget*>()) inside->installEventFilter(this);
}

bool MovablePanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &panel_ && event->type() == QEvent::LayoutRequest && floating()) fit();
  if (watched == &page_ && event->type() == QEvent::Resize) fit();
  const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
  if (mouse == nullptr) return false;
  const QPoint pointer = mouse->globalPosition().toPoint();
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      held_ = mouse->button() == Qt::LeftButton;
      grip_ = panel_.mapFromGlobal(pointer);
      break;
    case QEvent::MouseMove:
      held_ = held_ && (mouse->buttons() & Qt::LeftButton) != 0;
      if (!held_) break;
      if (!floating()) {
        if ((panel_.mapFromGlobal(pointer) - grip_).manhattanLength() < QApplication::startDragDistance()) {
          break;
        }
        lift();
      }
      moveTo(page_.mapFromGlobal(pointer) - grip_);
      break;
    case QEvent::MouseButtonRelease:
      if (held_ && floating() && overHome()) putBack();
      held_ = false;
      break;
    case QEvent::MouseButtonDblClick:
      if (floating()) putBack();
      break;
    default:
      break;
  }
  return false;
}

void MovablePanel::lift() {
  stand_ = new QWidget(panel_.parentWidget());
  stand_->setFixedHeight(panel_.height());
  stand_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  delete home_.replaceWidget(&panel_, stand_);
  panel_.setParent(&page_);
  setLook(panel_, QStringLiteral("floating"));
  page_.installEventFilter(this);
  panel_.raise();
  panel_.show();
  fit();
  // The floating panel may be smaller than its place in the row: the pointer must still be over it.
  grip_ = QPoint(std::min(grip_.x(), panel_.width() / 2), std::min(grip_.y(), panel_.height() / 2));
}

void MovablePanel::putBack() {
  page_.removeEventFilter(this);
  delete home_.replaceWidget(stand_, &panel_);
  delete stand_;
  stand_ = nullptr;
  panel_.layout()->setContentsMargins({});
  panel_.setMinimumSize(0, 0);
  panel_.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  setLook(panel_, homeLook_);
  panel_.show();
}

void MovablePanel::fit() {
  if (!floating()) return;
  const int aside = dp(&page_, 16);
  const int above = dp(&page_, 12);
  panel_.layout()->setContentsMargins(aside, above, aside, above);
  const int wide = std::min(dp(&page_, floatingWidth), page_.width());
  const int high = panel_.layout()->hasHeightForWidth() ? panel_.layout()->heightForWidth(wide)
                                                        : panel_.layout()->sizeHint().height();
  panel_.setFixedSize(wide, high);
  moveTo(panel_.pos());
}

void MovablePanel::moveTo(const QPoint& corner) {
  panel_.move(within(QRect(corner, panel_.size()), page_.size()).topLeft());
}

bool MovablePanel::overHome() const {
  const QRect place(stand_->mapTo(&page_, QPoint(0, 0)), stand_->size());
  return place.contains(panel_.geometry().center());
}

}  // namespace widgets
