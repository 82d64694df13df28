// Qt's event loop driving the program's own: a timer that goes off at the next due time, and at once where
// something was held back until a sound had ended.
#pragma once

#include <QObject>
#include <QTimer>

#include "platform/event_loop.h"

namespace desktop {

class LoopAlarm final : public QObject {
  Q_OBJECT
 public:
  explicit LoopAlarm(platform::EventLoop& loop);
  ~LoopAlarm() override { loop_.onReschedule({}); }
  // Nothing is driven before.
  void start();

 private:
  void serve();
  void arm();

  platform::EventLoop& loop_;
  QTimer alarm_;
  bool started_ = false;
};

}  // namespace desktop
