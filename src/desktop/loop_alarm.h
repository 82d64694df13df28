// Drives the program's event loop from Qt's, by a timer for the next due time; it goes off at once if actions
// were held back until a sound had ended.
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
  // Before this call nothing is driven.
  void start();

 private:
  void serve();
  void arm();

  platform::EventLoop& loop_;
  QTimer alarm_;
  bool started_ = false;
};

}  // namespace desktop
