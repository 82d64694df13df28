// Plays and records at a real sound server; run it under with-sound-server.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTcpServer>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <numbers>

#include "desktop/comes.h"
#include "desktop/loudspeaker.h"
#include "devices/mpv_media.h"
#include "disk/disk_file_system.h"
#include "platform/media_parser.h"

namespace devices {
namespace {

namespace fs = std::filesystem;
using support::comes;

struct MpvMediaTest : testing::Test {
  const std::string folder = (fs::temp_directory_path() / ("médias & " + std::to_string(getpid()))).string();
  const std::string piece = folder + "/un \"air\" alias b parent 1 🎵.wav";
  disk::DiskFileSystem files;
  PulseConnection connection{"Ventoria"};
  PulseOutputLevel level{connection};
  MpvMedia media{connection, level, files};
  platform::ParsedMediaCommands commands{media};

  MpvMediaTest() {
    files.makeFolder(folder);
    commands.workIn(folder);
    keepTone(1);
  }
  ~MpvMediaTest() override { fs::remove_all(folder); }

  void keepTone(int seconds) {
    platform::RecordingFormat format;
    std::vector<unsigned char> tone(static_cast<std::size_t>(seconds * format.bytesPerSecond()));
    for (std::size_t i = 0; i < tone.size(); ++i) {
      const double phase = 2 * std::numbers::pi * 440 * static_cast<double>(i) / format.samplesPerSecond;
      tone[i] = static_cast<unsigned char>(128 + std::lround(60 * std::sin(phase)));
    }
    platform::saveWhole(files, piece, platform::wavFile(format, tone));
  }
  std::string send(const std::string& command) { return commands.send(command); }
  void open() { send("open MPEGVideo!" + piece + " alias m parent 0 Style 1073741824"); }
  int position() { return std::atoi(send("status m position notify").c_str()); }
};

TEST_F(MpvMediaTest, PlaysToItsLengthExactlyAndAgain) {
  open();
  EXPECT_EQ(send("status m length"), "1000");
  EXPECT_EQ(send("status m mode"), "stopped");
  EXPECT_EQ(position(), 0);
  send("play m from 0");
  EXPECT_EQ(send("status m mode"), "playing");
  EXPECT_TRUE(comes([&] { return position() > 300; }));
  EXPECT_TRUE(comes([&] { return send("status m mode") == "stopped"; }));
  EXPECT_EQ(position(), 1000);
  send("play m from 400");
  EXPECT_EQ(send("status m mode"), "playing");
  EXPECT_LT(position(), 1000);
  EXPECT_TRUE(comes([&] { return position() == 1000; }));
}

TEST_F(MpvMediaTest, HoldsWhereItIsAndGoesOn) {
  open();
  send("play m from 0");
  EXPECT_TRUE(comes([&] { return position() > 100; }));
  send("stop m");
  const int held = position();
  EXPECT_EQ(send("status m mode"), "stopped");
  send("play m");
  EXPECT_TRUE(comes([&] { return position() > held; }));
  send("seek m to 250");
  EXPECT_EQ(position(), 250);
  send("close m");
  EXPECT_EQ(send("status m mode"), "");
}

// The piece's own volume and the program's level are amplitudes, and not one sample sounds without them.
TEST_F(MpvMediaTest, ANewPieceHasItsVolumeAndTheLevelFromItsFirstSample) {
  send("setaudio m volume to 500");
  level.set(0x8000, 0x8000);
  support::Recording recording;
  open();
  send("play m from 0");
  EXPECT_TRUE(comes([&] { return position() > 400; }));
  const support::Samples heard = recording.samples();
  const auto begin =
      std::find_if(heard.begin(), heard.end(), [](int value) { return value > 60 * 256 / 40; });
  ASSERT_GT(heard.end() - begin, 2 * 882);
  for (const auto end : {begin + 2 * 882, heard.end()})         // the first 20 ms, and all
    EXPECT_NEAR(*std::max_element(begin, end), 15 * 256, 120);  // a quarter of 60
}

TEST_F(MpvMediaTest, OpensNothingThatDoesNotSound) {
  platform::saveWhole(files, folder + "/text.mp3", std::string("Ceci n'est pas de la musique."));
  send("open MPEGVideo!" + folder + "/text.mp3 alias m parent 0 Style 1073741824");
  EXPECT_EQ(send("status m mode"), "");
  send("open MPEGVideo!" + folder + "/absent.mp3 alias m parent 0 Style 1073741824");
  EXPECT_EQ(send("status m mode"), "");
}

// A piece may be a list of addresses under a false name; none of them is asked.
TEST_F(MpvMediaTest, FollowsNoAddressThatAFileHolds) {
  QTcpServer elsewhere;
  ASSERT_TRUE(elsewhere.listen(QHostAddress::LocalHost));
  const std::string address = "http://127.0.0.1:" + std::to_string(elsewhere.serverPort()) + "/a";
  for (const std::string& text :
       {"#EXTM3U\n" + address + ".mp3\n",
        "#EXTM3U\n#EXT-X-TARGETDURATION:9\n#EXTINF:9,\n" + address + ".ts\n#EXT-X-ENDLIST\n",
        "ffconcat version 1.0\nfile '" + address + ".mp3'\n", "# mpv EDL v0\n" + address + ".mp3\n",
        "[playlist]\nFile1=" + address + ".mp3\n"}) {
    platform::saveWhole(files, folder + "/liste.mp3", text);
    send("open MPEGVideo!" + folder + "/liste.mp3 alias m parent 0 Style 1073741824");
    send("play m from 0");
    EXPECT_FALSE(elsewhere.waitForNewConnection(100)) << text;
    send("close m");
  }
}

TEST_F(MpvMediaTest, RecordsListensAndSaves) {
  for (const char* command :
       {"open new type waveaudio alias capture", "seek capture to start", "set capture samplespersec 11025",
        "set capture bitspersample 8", "set capture channels 1", "record capture"}) {
    send(command);
  }
  EXPECT_EQ(send("status capture mode"), "recording");
  EXPECT_TRUE(comes([&] { return std::atoi(send("status capture length").c_str()) > 400; }));
  send("stop capture");
  EXPECT_EQ(send("status capture mode"), "stopped");
  const std::string length = send("status capture length");
  send("set capture time format bytes");
  const std::string bytes = send("status capture length");
  EXPECT_EQ(send("status capture bytespersec"), "11025");
  send("save capture tma");
  const auto saved = files.open(folder + "/tma", platform::OpenMode::Read);
  EXPECT_NEAR(static_cast<double>(saved->size()), 44 + std::atof(bytes.c_str()), 1);
  send("set capture time format ms");
  send("play capture from 0");
  EXPECT_EQ(send("status capture mode"), "playing");
  EXPECT_TRUE(comes([&] { return send("status capture mode") == "stopped"; }));
  EXPECT_EQ(send("status capture position notify"), length);
}

TEST_F(MpvMediaTest, IsHeardAgainOnceTheServerIsBack) {
  keepTone(60);
  open();
  send("play m from 0");
  EXPECT_TRUE(comes([&] { return position() > 100; }));
  const pid_t server = support::serverPid();
  kill(server, SIGKILL);
  EXPECT_TRUE(comes([&] { return support::serverPid() != server && connection.hasLoudspeaker(); }));
  EXPECT_TRUE(comes([&] {
    const int at = position();
    const support::Samples heard = support::Recording().samples();
    return at < 60000 && std::any_of(heard.begin(), heard.end(), [](int value) { return value > 5000; });
  }));
}

// Without a server nothing waits: the music runs on unheard, and a recording stays empty.
TEST_F(MpvMediaTest, RunsWithoutAServer) {
  const std::string server = std::getenv("PULSE_SERVER");
  setenv("PULSE_SERVER", "unix:/nonexistent", 1);
  PulseConnection nowhere("Ventoria");
  PulseOutputLevel unheard(nowhere);
  MpvMedia silent(nowhere, unheard, files);
  silent.openFile("m", piece);
  silent.play("m");
  EXPECT_TRUE(comes([&] { return silent.figure("m", platform::MediaFigure::Position) == 1000; }));
  silent.openRecorder("capture");
  silent.record("capture");
  EXPECT_EQ(silent.mode("capture"), "stopped");
  EXPECT_EQ(silent.figure("capture", platform::MediaFigure::Length), 0);
  setenv("PULSE_SERVER", server.c_str(), 1);
}

}  // namespace
}  // namespace devices
