#include "desktop/form_view.h"

#include <QCoreApplication>
#include <QEvent>

namespace desktop {

void FormView::follow(platform::Component& component) {
  component.watch([this](platform::Component&, platform::Prop) { refreshSoon(); });
}

void FormView::followAll(const platform::Form& form) {
  for (platform::Component* component : form.components()) follow(*component);
}

void FormView::refreshSoon() {
  stale_ = true;
  if (posted_ || !page_.isVisible()) return;
  posted_ = true;
  // An event, not a timer: Qt handles it before it repaints, so that all is repainted once.
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void FormView::refresh() {
  stale_ = false;
  draw();
}

void FormView::catchUp() {
  if (stale_ && page_.isVisible()) refresh();
}

void FormView::customEvent(QEvent*) {
  posted_ = false;
  catchUp();
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &page_ && event->type() == QEvent::Show && stale_) refresh();
  return QObject::eventFilter(watched, event);
}

}  // namespace desktop
