// One running program for each rider and program folder: a second one wakes the first, and ends.
#pragma once

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QString>
#include <functional>

namespace desktop {

class SingleInstance {
 public:
  // `woken` is called in the first program, from Qt's event loop, with the path of a file that a later one
  // has sent, or with an empty text where it sent nothing, or no such path.
  SingleInstance(const QString& programFolder, std::function<void(QString)> woken);
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  [[nodiscard]] bool first() const { return first_; }
  // Where the first one listens, in a folder that nobody else can reach. Empty if there is no such folder:
  // then each program is a first one.
  [[nodiscard]] const QString& address() const { return address_; }
  // Sends the text to the first program, from a later one; false if the first does not answer.
  bool wakeFirst(const QString& text = {}) const;

 private:
  void listen();
  void hear(QLocalSocket& socket);

  QString address_;
  std::function<void(QString)> woken_;
  QLockFile lock_;
  QLocalServer server_;
  bool first_ = false;
};

}  // namespace desktop
