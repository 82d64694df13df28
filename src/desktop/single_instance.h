// One running program for each rider and program folder: a second one wakes the first, and ends.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <functional>

namespace desktop {

class SingleInstance {
 public:
  // `woken` is called in the first program, from Qt's event loop, with the text that a later one has sent.
  SingleInstance(const QString& programFolder, std::function<void(QString)> woken);
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  [[nodiscard]] bool first() const { return first_; }
  // Sends the text to the first program, from a later one; false if the first does not answer.
  bool wakeFirst(const QString& text = {}) const;

 private:
  void listen();

  QString address_;
  std::function<void(QString)> woken_;
  QLockFile lock_;
  QLocalServer server_;
  bool first_ = false;
};

}  // namespace desktop
