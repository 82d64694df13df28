// The desktop's screen saver, held off through the session bus for as long as the program asks and lives.
#pragma once

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QString>
#include <optional>

#include "platform/screen_saver.h"

namespace desktop {

class DbusScreenSaver final : public platform::ScreenSaver {
 public:
  explicit DbusScreenSaver(QDBusConnection bus = QDBusConnection::sessionBus());

  bool active() override;
  void setActive(bool active) override;

 private:
  // The saver's address on the bus; empty where no saver answers.
  QString owner();

  QDBusConnection bus_;
  QElapsedTimer absentSince_;      // invalid: not known to be absent
  std::optional<quint32> cookie_;  // of the inhibition that we hold
  QString holder_;                 // the owner that granted it; another one knows nothing of it
};

}  // namespace desktop
