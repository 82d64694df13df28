#include <gtest/gtest.h>

#include "platform/media_parser.h"
#include "rehearsal/media_length.h"
#include "rehearsal/memory_file_system.h"
#include "rehearsal/simulated_clock.h"
#include "rehearsal/simulated_media.h"
#include "support/media_files.h"

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

// Commands that the tests of the simulated media below do not give.
TEST(MediaCommands, AreReadIntoCalls) {
  const auto sent = [](const std::string& command) {
    CallList calls;
    platform::ParsedMediaCommands commands(calls);
    commands.workIn("/d/annonces");
    const std::string answer = commands.send(command);
    return calls.last + (answer.empty() ? "" : " = " + answer);
  };
  const std::string end = " parent 132 Style 1073741824";
  for (const std::string name :
       {"A|/m/l'été & « 100% » \"🎵\".mp3", "A|/m/x alias y parent 1 Style 2", "Aform7|/m/a  b .mp3"}) {
    const auto bar = name.find('|');
    const std::string command = "open MPEGVideo!" + name.substr(bar + 1) + " alias " + name.substr(0, bar);
    EXPECT_EQ(sent(command + end), "open " + name);
    EXPECT_EQ(sent(command), "");
  }
  for (const std::string name : {"https://example.org/a.mp3", "--script=a.mp3"})
    EXPECT_EQ(sent("open MPEGVideo!" + name + " alias A" + end), "open A|./" + name);
  const std::pair<const char*, const char*> rows[]{
      {"close video001", "close video001"},
      {"seek capture to start", "seek capture 0"},
      {"seek A to 77", "seek A 77"},
      {"save capture deux mots", "save capture|/d/annonces/deux mots"},
      {"save capture /tmp/x", "save capture|/tmp/x"},
      {"set A time format milliseconds", "ms A"},
      {"set capture samplespersec 11025", "recording 0 capture 11025"},
      {"set capture bitspersample 8", "recording 1 capture 8"},
      {"set capture channels 1", "recording 2 capture 1"},
      {"set A audio all off", "mute A"},
      {"set A audio all on", "loud A"},
      {"setaudio A volume to 1000", "volume A 1000"},
      {"status capture channels", "figure capture 2 = 7"},
      {"status capture bitspersample", "figure capture 3 = 7"},
      {"play A ", "play A"}};
  for (const auto& [command, call] : rows) EXPECT_EQ(sent(command), call);
  for (const char* refused :
       {"play A from", "play A from 12x", "save capture ", "set A speed 0", "setaudio A volume to 1001",
        "setaudio A volume to -1", "where A destination", "put A window at 0 0 320 240", "PLAY A", "",
        "dance A", "open MPEGVideo!/m/a.mp3 alias  parent 132 Style 1073741824"})
    EXPECT_EQ(sent(refused), "") << refused;
}

// A little-endian number of so many bytes.
std::string word(unsigned value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
  return bytes;
}

std::string wav(unsigned coding, unsigned channels, unsigned rate, unsigned block, const std::string& between,
                unsigned data, unsigned toldData = 0) {
  return "RIFF" + word(0, 4) + "WAVEfmt " + word(16, 4) + word(coding, 2) + word(channels, 2) +
         word(rate, 4) + word(0, 4) + word(block, 2) + word(8, 2) + between + "data" +
         word(toldData != 0 ? toldData : data, 4) + std::string(data, 'x');
}

TEST(MediaLength, IsReadFromTheFileItself) {
  const std::string xing = std::string("Xing\0\0\0\1\0\0\3\xE8", 12);  // 1000 frames
  std::string vbri("VBRI", 4);
  vbri += std::string(10, '\0') + std::string("\0\0\1\xF4", 4);  // 500 frames
  const std::string tag = std::string("ID3\4\0\0\0\0\1\2", 10) + std::string(130, 'x');
  const std::pair<std::string, std::optional<std::int64_t>> rows[] = {
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
      {wav(1, 1, 11025, 1, "", 11025), 1000},
      {wav(1, 2, 22050, 4, "LIST" + word(3, 4) + "abc" + word(0, 1), 44100), 500},
      {wav(1, 1, 1000, 1, "", 500, 0x7FFFFFFF), 500},  // a header that promises too much
      {wav(2, 1, 1000, 10, "", 26), 16},               // two blocks of 8 frames, and too little for a third
      {wav(2, 1, 1000, 10, "", 29), 22},
      {wav(2, 1, 1000, 10, "fact" + word(4, 4) + word(20, 4), 29), 20},   // the last block is filled up
      {wav(2, 1, 1000, 10, "fact" + word(4, 4) + word(123, 4), 29), 22},  // what is not there is not played
      {wav(1, 0, 1000, 1, "", 10), std::nullopt},
      {wav(85, 1, 1000, 1, "", 10), std::nullopt},
      {"RIFF", std::nullopt},
  };
  for (const auto& [bytes, wanted] : rows) {
    rehearsal::MemoryFileSystem disk;
    disk.put("/m", bytes);
    const auto length = rehearsal::mediaLength(*disk.open("/m", platform::OpenMode::Read));
    EXPECT_EQ(length ? length->count() : -1, wanted.value_or(-1)) << bytes.substr(0, 50) << bytes.size();
  }
}

struct Simulated : testing::Test {
  rehearsal::SimulatedClock clock{platform::LocalTime{}};
  rehearsal::MemoryFileSystem disk;
  rehearsal::SimulatedMachine machine;
  rehearsal::SimulatedMedia media{clock, disk, machine};
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
  EXPECT_EQ(rehearsal::mediaLength(*disk.open("/d/annonces/tma", platform::OpenMode::Read)), 1500ms);
  send("play c from 0");
  pass(500ms);
  EXPECT_EQ(send("status c mode"), "playing");
  pass(1s);
  send("set c time format ms");
  EXPECT_EQ(at("c"), "stopped 1500");
}

}  // namespace
