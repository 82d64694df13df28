#include <gtest/gtest.h>

#include "console/media_length.h"
#include "console/simulated_media.h"
#include "platform/media_parser.h"
#include "support/media_files.h"
#include "support/memory_file_system.h"

namespace {

using namespace std::chrono_literals;
using platform::MediaFigure;

// Writes each call down as one line, and answers 7.
class CallList final : public platform::MediaBackend {
 public:
  std::string last;
  void openFile(const std::string& a, const std::string& p) override { last = "open " + a + "|" + p; }
  void openRecorder(const std::string& a) override { last = "recorder " + a; }
  void close(const std::string& a) override { last = "close " + a; }
  void closeAll() override { last = "close everything"; }
  void play(const std::string& a) override { last = "play " + a; }
  void playFrom(const std::string& a, std::int64_t n) override { number("from", a, n); }
  void stop(const std::string& a) override { last = "stop " + a; }
  void pause(const std::string& a) override { last = "pause " + a; }
  void seek(const std::string& a, std::int64_t n) override { number("seek", a, n); }
  void record(const std::string& a) override { last = "record " + a; }
  void save(const std::string& a, const std::string& p) override { last = "save " + a + "|" + p; }
  void setTimeFormat(const std::string& a, platform::TimeFormat f) override {
    last = (f == platform::TimeFormat::Bytes ? "bytes " : "ms ") + a;
  }
  void setRecording(const std::string& a, platform::RecordingFigure f, int n) override {
    number("recording " + std::to_string(static_cast<int>(f)), a, n);
  }
  void setSpeed(const std::string& a, int n) override { number("speed", a, n); }
  void setVolume(const std::string& a, int n) override { number("volume", a, n); }
  void setAudible(const std::string& a, bool on) override { last = (on ? "loud " : "mute ") + a; }
  std::string mode(const std::string& a) override { return last = "mode " + a; }
  std::optional<std::int64_t> figure(const std::string& a, MediaFigure f) override {
    number("figure", a, static_cast<int>(f));
    return 7;
  }

 private:
  void number(const std::string& what, const std::string& a, std::int64_t n) {
    last = what + " " + a + " " + std::to_string(n);
  }
};

TEST(MediaCommands, AreReadIntoCalls) {
  struct Row {
    std::string command;
    std::string call;
    std::string answer = {};
  };
  const std::string end = " parent 132 Style 1073741824";
  const Row rows[] = {
      {"open MPEGVideo!/m/a.mp3 alias Aform7" + end, "open Aform7|/m/a.mp3"},
      {"open MPEGVideo!/m/l'été & « 100% » \"🎵\".mp3 alias A" + end, "open A|/m/l'été & « 100% » \"🎵\".mp3"},
      {"open MPEGVideo!/m/x alias y parent 1 Style 2 alias A" + end, "open A|/m/x alias y parent 1 Style 2"},
      {"open MPEGVideo!/m/a  b .mp3 alias A" + end, "open A|/m/a  b .mp3"},
      {"open MPEGVideo!/m/a.mp3 alias A", ""},
      {"open MPEGVideo!/m/a.mp3 alias " + end, ""},
      {"open new type waveaudio alias capture", "recorder capture"},
      {"close all", "close everything"},
      {"close video001", "close video001"},
      {"play A", "play A"},
      {"play A from 1200", "from A 1200"},
      {"play A from", ""},
      {"play A from 12x", ""},
      {"stop A", "stop A"},
      {"pause A", "pause A"},
      {"seek capture to start", "seek capture 0"},
      {"seek A to 77", "seek A 77"},
      {"record capture", "record capture"},
      {"save capture tma", "save capture|/d/annonces/tma"},
      {"save capture deux mots", "save capture|/d/annonces/deux mots"},
      {"save capture /tmp/x", "save capture|/tmp/x"},
      {"save capture ", ""},
      {"set capture time format ms", "ms capture"},
      {"set A time format milliseconds", "ms A"},
      {"set capture time format bytes", "bytes capture"},
      {"set capture samplespersec 11025", "recording 0 capture 11025"},
      {"set capture bitspersample 8", "recording 1 capture 8"},
      {"set capture channels 1", "recording 2 capture 1"},
      {"set A speed 500", "speed A 500"},
      {"set A speed 0", ""},
      {"set A audio all off", "mute A"},
      {"set A audio all on", "loud A"},
      {"setaudio A volume to 1000", "volume A 1000"},
      {"setaudio A volume to 1001", ""},
      {"setaudio A volume to -1", ""},
      {"status capture mode", "mode capture", "mode capture"},
      {"status A length", "figure A 0", "7"},
      {"status A position notify", "figure A 1", "7"},
      {"status capture channels", "figure capture 2", "7"},
      {"status capture bitspersample", "figure capture 3", "7"},
      {"status capture bytespersec", "figure capture 4", "7"},
      {"where A destination", ""},
      {"put A window at 0 0 320 240", ""},
      {"play A ", "play A"},
      {"PLAY A", ""},
      {"", ""},
      {"dance A", ""},
  };
  for (const Row& row : rows) {
    CallList calls;
    platform::ParsedMediaCommands commands(calls);
    commands.workIn("/d/annonces");
    EXPECT_EQ(commands.send(row.command), row.answer) << row.command;
    EXPECT_EQ(calls.last, row.call) << row.command;
  }
}

TEST(MediaLength, IsReadFromTheFileItself) {
  const std::string xing = std::string("Xing\0\0\0\1\0\0\3\xE8", 12);  // 1000 frames
  std::string vbri("VBRI", 4);
  vbri += std::string(10, '\0') + std::string("\0\0\1\xF4", 4);  // 500 frames
  const std::string tag = std::string("ID3\4\0\0\0\0\1\2", 10) + std::string(130, 'x');
  struct Row {
    std::string bytes;
    std::optional<std::int64_t> length;
  };
  const Row rows[] = {
      {support::wavOf(2500), 2500},
      {support::wavOf(0), 0},
      {support::mp3Of(100), 2606},
      {tag + support::mp3Of(100), 2606},
      {support::mp3Of(100) + "TAG" + std::string(125, ' '), 2606},
      {support::mp3Of(1), 26},
      {support::mp3Of(2, xing), 26122},
      {support::mp3Of(2, vbri), 13061},
      {std::string("\xFF\xFB\x90\x00", 4) + std::string(2000, 'x'), std::nullopt},
      {std::string(5000, '\0'), std::nullopt},
      {"", std::nullopt},
  };
  for (const Row& row : rows) {
    support::MemoryFileSystem disk;
    disk.put("/m", row.bytes);
    const auto length = console::mediaLength(*disk.open("/m", platform::OpenMode::Read));
    EXPECT_EQ(length ? length->count() : -1, row.length.value_or(-1)) << &row - rows;
  }
}

struct Simulated : testing::Test {
  platform::SimulatedClock clock{platform::LocalTime{}};
  support::MemoryFileSystem disk;
  console::SimulatedMachine machine;
  console::SimulatedMedia media{clock, disk, machine};
  platform::ParsedMediaCommands commands{media};

  std::string send(const std::string& command) { return commands.send(command); }
  void pass(std::chrono::milliseconds time) { clock.sleepUntil(clock.now() + time); }
  std::string at(const std::string& alias) {
    return send("status " + alias + " mode") + " " + send("status " + alias + " position notify");
  }
  void openFile() { send("open MPEGVideo!/m.wav alias m parent 0 Style 1073741824"); }
};

TEST_F(Simulated, RunsOnTheClockUpToItsLengthExactly) {
  disk.put("/m.wav", support::wavOf(2500));
  openFile();
  EXPECT_EQ(at("m"), "stopped 0");
  send("play m from 0");
  pass(333ms);
  EXPECT_EQ(at("m"), "playing 333");
  send("set m speed 500");
  pass(1ms);
  pass(1ms);
  EXPECT_EQ(at("m"), "playing 334");
  send("set m speed 2000");
  pass(500ms);
  send("pause m");
  pass(500ms);
  EXPECT_EQ(at("m"), "paused 1334");
  send("play m");
  pass(100ms);
  send("stop m");
  EXPECT_EQ(at("m"), "stopped 1534");
  openFile();  // the name is taken
  send("play m from 2400");
  pass(10s);
  EXPECT_EQ(at("m"), "stopped 2500");
  EXPECT_EQ(send("status m length"), "2500");
  EXPECT_EQ(send("status m channels"), "");
  send("play m");
  EXPECT_EQ(at("m"), "stopped 2500");
  send("close all");
  EXPECT_EQ(at("m"), " ");
}

TEST_F(Simulated, RecordsATakeThatIsARealFile) {
  commands.workIn("/d/annonces/");
  for (const char* command : {"open new type waveaudio alias c", "set c samplespersec 11025",
                              "set c bitspersample 8", "set c channels 1", "record c"})
    send(command);
  pass(1500ms);
  EXPECT_EQ(send("status c mode"), "recording");
  send("stop c");
  pass(700ms);
  EXPECT_EQ(send("status c length"), "1500");
  send("set c time format bytes");
  EXPECT_EQ(send("status c length") + " " + send("status c bytespersec"), "16537 11025");
  send("save c tma");
  EXPECT_EQ(disk.files.at("/d/annonces/tma")->size(), 44U + 16538U);  // an odd size is filled up
  EXPECT_EQ(console::mediaLength(*disk.open("/d/annonces/tma", platform::OpenMode::Read)), 1500ms);
  send("play c from 0");
  pass(500ms);
  EXPECT_EQ(send("status c mode"), "playing");
  pass(1s);
  send("set c time format ms");
  EXPECT_EQ(at("c"), "stopped 1500");
}

}  // namespace
