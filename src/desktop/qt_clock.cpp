#include "desktop/qt_clock.h"

#include <QCoreApplication>
#include <QTimer>

namespace desktop {

void QtClock::sleepUntil(platform::Instant when) {
  const platform::Instant left = when - now();
  if (left.count() <= 0) {
    QCoreApplication::processEvents();
    return;
  }
  QTimer alarm;
  alarm.setTimerType(Qt::PreciseTimer);
  alarm.setSingleShot(true);
  alarm.start(left);
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace desktop
