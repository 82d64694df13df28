// The system's requests to end: a logout, a shutdown, the terminal that is closed. Each is handled in Qt's
// loop; a sound that blocks it can ask whether one has come.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace desktop {

class EndSignals final : public QObject {
  Q_OBJECT
 public:
  EndSignals();
  ~EndSignals() override;
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  // One has come.
  [[nodiscard]] static bool raised();

 signals:
  void asked();

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace desktop
