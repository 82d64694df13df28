#include "desktop/dbus_screen_saver.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QThread>
#include <mutex>

namespace desktop {
namespace {

// A saver that grants inhibitions and writes down what it was asked.
class FakeSaver final : public QDBusVirtualObject {
 public:
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    const std::lock_guard guard(mutex_);
    QString line = message.member();
    for (const QVariant& argument : message.arguments()) line += u'|' + argument.toString();
    lines_ += line;
    return bus.send(message.createReply(message.member() == "Inhibit" ? QVariantList{42U} : QVariantList{}));
  }
  QStringList lines() {
    const std::lock_guard guard(mutex_);
    return lines_;
  }

 private:
  std::mutex mutex_;
  QStringList lines_;
};

class DbusScreenSaverTest : public testing::Test {
 protected:
  void SetUp() override {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon_.waitForReadyRead()) << "dbus-daemon does not start";
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
  }
  void TearDown() override {
    saverThread_.quit();
    saverThread_.wait();
    for (const char* name : {"saver", "rider"}) QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    daemon_.waitForFinished();
  }
  // A thread of its own answers, as another program would.
  void startSaver() {
    QDBusConnection bus = QDBusConnection::connectToBus(address_, "saver");
    saver_.moveToThread(&saverThread_);
    saverThread_.start();
    ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/ScreenSaver", &saver_));
    ASSERT_TRUE(bus.registerService("org.freedesktop.ScreenSaver"));
  }

  QProcess daemon_;
  QString address_;
  FakeSaver saver_;
  QThread saverThread_;
};

TEST_F(DbusScreenSaverTest, IsHeldOffAndLetGo) {
  startSaver();
  DbusScreenSaver saver(QDBusConnection::connectToBus(address_, "rider"));
  EXPECT_TRUE(saver.active());
  saver.setActive(false);
  saver.setActive(false);
  EXPECT_FALSE(saver.active());
  saver.setActive(true);
  EXPECT_TRUE(saver.active());
  saver.setActive(false);
  EXPECT_EQ(saver_.lines(), QStringList({"Inhibit|Ventoria|Séance d'entraînement en cours", "UnInhibit|42",
                                         "Inhibit|Ventoria|Séance d'entraînement en cours"}));
}

TEST_F(DbusScreenSaverTest, AMissingOneIsNeverArmedAndNotAskedAgainAtOnce) {
  DbusScreenSaver saver(QDBusConnection::connectToBus(address_, "rider"));
  DbusScreenSaver withoutBus(QDBusConnection(QStringLiteral("no such bus")));
  for (DbusScreenSaver* each : {&saver, &withoutBus}) {
    EXPECT_FALSE(each->active());
    each->setActive(false);
    each->setActive(true);
  }
  startSaver();
  EXPECT_FALSE(saver.active());
  EXPECT_TRUE(saver_.lines().empty());
  EXPECT_TRUE(DbusScreenSaver(QDBusConnection::connectToBus(address_, "rider")).active());
}

}  // namespace
}  // namespace desktop
