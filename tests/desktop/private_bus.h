// A message bus for one test, with a service that answers from its own thread, as another program would.
#pragma once

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QThread>
#include <functional>

class PrivateBus {
 public:
  // `answer` gives the service's answer to a call.
  explicit PrivateBus(std::function<QVariantList(const QDBusMessage&)> answer) {
    object_.answer = std::move(answer);
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    EXPECT_TRUE(daemon_.waitForReadyRead()) << "dbus-daemon does not start";
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
  }
  ~PrivateBus() {
    thread_.quit();
    thread_.wait();
    for (const char* name : {"service", "rider", "client"}) QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    daemon_.waitForFinished();
  }
  QDBusConnection startService(const char* name, const char* path) {
    QDBusConnection bus = QDBusConnection::connectToBus(address_, "service");
    object_.moveToThread(&thread_);
    thread_.start();
    EXPECT_TRUE(bus.registerVirtualObject(path, &object_) && bus.registerService(name));
    return bus;
  }
  QDBusConnection rider() { return connect("rider"); }
  // `name` is "rider" or "client".
  QDBusConnection connect(const char* name) { return QDBusConnection::connectToBus(address_, name); }

 private:
  struct Object final : QDBusVirtualObject {
    std::function<QVariantList(const QDBusMessage&)> answer;
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
      return bus.send(message.createReply(answer(message)));
    }
  };

  QProcess daemon_;
  QString address_;
  Object object_;
  QThread thread_;
};
