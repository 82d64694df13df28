// Works a ride over a message bus, as a headset's button does.
#include "desktop/media_control.h"

#include <gtest/gtest.h>

#include <QDBusPendingReply>
#include <QTest>

#include "desktop/private_bus.h"
#include "support/simulated_program.h"

namespace desktop {
namespace {

class MediaControlTest : public testing::Test {
 protected:
  MediaControlTest() {
    EXPECT_TRUE(program_.start());
    program_.run(support::composeTwoRows("Plat", "10", "Sprint", "20"));
  }

  QVariant asked(const QString& interface, const QString& method, const QVariantList& arguments = {}) {
    auto call = QDBusMessage::createMethodCall("org.mpris.MediaPlayer2.ventoria", "/org/mpris/MediaPlayer2",
                                               interface, method);
    call.setArguments(arguments);
    const QDBusPendingReply<> reply = client_.asyncCall(call);
    EXPECT_TRUE(QTest::qWaitFor([&] { return reply.isFinished(); }, 20000)) << method.toStdString();
    const QVariantList answer = reply.reply().arguments();
    return answer.isEmpty() ? QVariant() : answer.first();
  }
  void order(const char* method) { asked("org.mpris.MediaPlayer2.Player", method); }
  QVariant property(const char* name) {
    return asked("org.freedesktop.DBus.Properties", "Get", {"org.mpris.MediaPlayer2.Player", name})
        .value<QDBusVariant>()
        .variant();
  }

  PrivateBus bus_{[](const QDBusMessage&) { return QVariantList(); }};
  QDBusConnection client_ = bus_.connect("client");
  support::SimulatedProgram program_;
  int raised_ = 0;
  MediaControl control_{program_.program(), [this] { ++raised_; }, bus_.connect("rider")};
};

TEST_F(MediaControlTest, PausesResumesAndCancelsTheRideAndTellsOfIt) {
  EXPECT_EQ(property("PlaybackStatus"), "Stopped");
  for (const char* method : {"PlayPause", "Play", "Pause", "Stop"}) order(method);
  EXPECT_FALSE(property("CanPause").toBool());
  program_.run("press CreerCycle.MyButton5\nadvance 0.5\npress MainForm.MyButton3\nadvance 6");
  ASSERT_TRUE(property("CanPause").toBool());
  const platform::Button& pause = program_.screens().main.Command7;
  order("Play");
  EXPECT_EQ(pause.caption.get(), "Pause");
  order("PlayPause");
  EXPECT_EQ(pause.caption.get(), "REPRENDRE");
  order("Pause");
  EXPECT_EQ(property("PlaybackStatus"), "Paused");
  order("Play");
  EXPECT_EQ(property("PlaybackStatus"), "Playing");
  const auto metadata = qdbus_cast<QVariantMap>(property("Metadata").value<QDBusArgument>());
  EXPECT_EQ(metadata.value("xesam:title").toString(), "Plat");
  EXPECT_EQ(metadata.value("mpris:length").toLongLong(), 10'000'000);
  EXPECT_EQ(property("Position").toLongLong() % 1'000'000, 0);
  EXPECT_FALSE(property("CanGoNext").toBool());
  order("Next");
  order("Stop");
  EXPECT_FALSE(program_.state().plan.started());
  EXPECT_EQ(property("PlaybackStatus"), "Stopped");
  asked("org.mpris.MediaPlayer2", "Raise");
  EXPECT_EQ(raised_, 1);
}

}  // namespace
}  // namespace desktop
