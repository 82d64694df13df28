#include "desktop/dbus_screen_saver.h"

#include <gtest/gtest.h>

#include <mutex>

#include "desktop/private_bus.h"

namespace desktop {
namespace {

// A screen saver that grants all requests and notes them.
class DbusScreenSaverTest : public testing::Test {
 protected:
  void startSaver() { bus_.startService("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"); }
  QStringList lines() {
    const std::lock_guard guard(mutex_);
    return lines_;
  }

  std::mutex mutex_;
  QStringList lines_;
  PrivateBus bus_{[this](const QDBusMessage& message) {
    const std::lock_guard guard(mutex_);
    QString line = message.member();
    for (const QVariant& argument : message.arguments()) line += u'|' + argument.toString();
    lines_ += line;
    return message.member() == "Inhibit" ? QVariantList{42U} : QVariantList{};
  }};
};

TEST_F(DbusScreenSaverTest, IsHeldOffAndLetGo) {
  startSaver();
  DbusScreenSaver saver(bus_.rider());
  EXPECT_TRUE(saver.active());
  saver.setActive(false);
  saver.setActive(false);
  EXPECT_FALSE(saver.active());
  saver.setActive(true);
  EXPECT_TRUE(saver.active());
  saver.setActive(false);
  EXPECT_EQ(lines(), QStringList({"Inhibit|Ventoria|Séance d'entraînement en cours", "UnInhibit|42",
                                  "Inhibit|Ventoria|Séance d'entraînement en cours"}));
}

TEST_F(DbusScreenSaverTest, AMissingOneIsNeverArmedAndNotAskedAgainAtOnce) {
  DbusScreenSaver saver(bus_.rider());
  DbusScreenSaver withoutBus(QDBusConnection(QStringLiteral("no such bus")));
  for (DbusScreenSaver* each : {&saver, &withoutBus}) {
    EXPECT_FALSE(each->active());
    each->setActive(false);
    each->setActive(true);
  }
  startSaver();
  EXPECT_FALSE(saver.active());
  EXPECT_TRUE(lines().empty());
  EXPECT_TRUE(DbusScreenSaver(bus_.rider()).active());
}

}  // namespace
}  // namespace desktop
