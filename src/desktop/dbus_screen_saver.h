// Keeps the desktop's screen saver off, through the session bus, until the program allows it again or ends.
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
  // The screen saver's address on the bus; empty if none answers.
  QString owner();
  void tellOfAbsence();

  QDBusConnection bus_;
  QElapsedTimer absentSince_;      // since when none has answered; invalid if one did
  bool told_ = false;              // that none answers
  std::optional<quint32> cookie_;  // the saver's number for our request to stay off
  QString holder_;  // the address of the saver that granted it; a restarted one has forgotten it
};

}  // namespace desktop
