// The master volume of a real sound server, beside other programs that change it; run under
// with-sound-server.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "desktop/comes.h"
#include "desktop/loudspeaker.h"
#include "devices/pulse_endpoint_volume.h"

namespace devices {
namespace {

using support::comes;

void pactl(const std::string& words) {
  ASSERT_EQ(std::system(("pactl " + words).c_str()), 0) << words;
}

std::string answerOf(const std::string& words) {
  std::string path = testing::TempDir() + "/answer";
  pactl(words + " > " + path);
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct EndpointVolume : testing::Test {
  PulseConnection connection{"Ventoria"};
  PulseEndpointVolume volume{connection, [](const std::function<void()>&) {}};

  void SetUp() override {
    ASSERT_NE(std::getenv("SOUND_SERVER_PID_FILE"), nullptr) << "not under with-sound-server";
    pactl("set-sink-volume test_out 80%");
    pactl("set-sink-mute test_out 0");
    ASSERT_TRUE(volume.open());
  }
};

TEST_F(EndpointVolume, SetsThePlainFractionAndKeepsTheBalance) {
  pactl("set-sink-volume test_out 80% 40%");
  ASSERT_TRUE(comes([&] { return volume.open() && std::abs(volume.level() - 0.8) < 0.001; }));
  for (const double step : {0.7, 0.6, 0.5}) {
    volume.setLevel(step);  // late answers about older steps are ignored
    EXPECT_NEAR(volume.level(), step, 0.001);
  }
  volume.setMuted(true);
  EXPECT_TRUE(comes([] {
    const std::string sink = answerOf("get-sink-volume test_out") + answerOf("get-sink-mute test_out");
    return sink.find(" 50% ") != std::string::npos && sink.find(" 25% ") != std::string::npos &&
           sink.find("yes") != std::string::npos;
  }));
}

// The screen writes back what it reads, in whole percents up to 100; the volume must not wander.
TEST_F(EndpointVolume, LeavesALevelThatItsOwnRoundingGivesBack) {
  for (const std::string units : {"48900", "98304"}) {  // 74.6 % and 150 %
    pactl("set-sink-volume test_out " + units);
    const double wanted = std::stod(units) / PA_VOLUME_NORM;
    ASSERT_TRUE(comes([&] { return std::abs(volume.level() - wanted) < 0.0001; }));
    volume.setLevel(std::min(1.0, std::round(wanted * 100) / 100));
    EXPECT_NEAR(volume.level(), wanted, 0.0001);
    EXPECT_NE(answerOf("get-sink-volume test_out").find(units), std::string::npos);
  }
}

TEST_F(EndpointVolume, StaysWithItsDeviceUntilItIsOpenedAnew) {
  pactl("set-sink-volume test_mic 20%");
  pactl("set-default-sink test_mic");
  EXPECT_NEAR(volume.level(), 0.8, 0.001);
  EXPECT_EQ(volume.channels(), 2);
  EXPECT_FALSE(volume.deviceName().empty());
  EXPECT_TRUE(volume.open());
  EXPECT_NEAR(volume.level(), 0.2, 0.001);
  EXPECT_EQ(volume.channels(), 1);
  pactl("set-default-sink test_out");
}

TEST_F(EndpointVolume, GoesWhereTheSoundGoesWhenItsDeviceIsPulled) {
  pactl("load-module module-null-sink sink_name=headphones >/dev/null");
  pactl("set-default-sink headphones");
  pactl("set-sink-volume headphones 30%");
  ASSERT_TRUE(volume.open());
  EXPECT_NEAR(volume.level(), 0.3, 0.001);
  pactl("unload-module $(pactl list short modules | grep headphones | cut -f1)");
  double lowest = 1;
  EXPECT_TRUE(comes([&] {
    lowest = std::min(lowest, volume.level());
    return volume.level() > 0.7;
  }));
  EXPECT_GT(lowest, 0.2);  // what is read sets the music's own volume, too
}

TEST_F(EndpointVolume, KeepsWhatAServerThatHangsSaidLast) {
  const pid_t server = support::serverPid();
  kill(server, SIGSTOP);
  EXPECT_TRUE(volume.open());
  EXPECT_NEAR(volume.level(), 0.8, 0.001);
  kill(server, SIGCONT);
  pactl("set-sink-volume test_out 50%");
  EXPECT_TRUE(comes([&] { return std::abs(volume.level() - 0.5) < 0.001; }));
  EXPECT_TRUE(comes([&] { return connection.ready(); }));
}

TEST_F(EndpointVolume, OvercomesAServerThatDies) {
  EXPECT_NE(volume.changes(), nullptr);
  kill(support::serverPid(), SIGKILL);
  // Nobody would tell that it is back.
  EXPECT_TRUE(comes([&] { return volume.changes() == nullptr; }));
  // Each level read is written back, as the volume bar does. What is read while the server is away must not
  // reach the next server, which begins at full volume.
  EXPECT_TRUE(comes([&] {
    const double read = volume.level();
    volume.setLevel(read);
    return read > 0.9;
  }));
  EXPECT_NE(volume.changes(), nullptr);
}

}  // namespace
}  // namespace devices
