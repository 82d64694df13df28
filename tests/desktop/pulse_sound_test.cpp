// Plays at a real sound server and listens to what comes out; run it under with-sound-server.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <list>
#include <string>

#include "desktop/comes.h"
#include "desktop/decode_wav.h"
#include "desktop/loudspeaker.h"
#include "devices/pulse_sound_output.h"

namespace devices {
namespace {

using support::comes;
using support::decodeWav;
using support::Recording;
using support::Samples;
using support::samplesPerMs;
using support::serverPid;
using Bytes = std::vector<unsigned char>;

std::string bankPath(const std::string& number) {
  return VENTORIA_SOURCE_DIR "/assets/voice/bank/" + number + ".wav";
}

Bytes bank(const std::string& number) {
  std::ifstream file(bankPath(number), std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

bool sounding(std::int16_t sample) {
  return sample != 0;
}

// A sound without the silence at both ends.
std::span<const std::int16_t> core(const Samples& samples) {
  const auto first = std::find_if(samples.begin(), samples.end(), sounding);
  const auto last = std::find_if(samples.rbegin(), std::make_reverse_iterator(first), sounding).base();
  return {first, last};
}

bool holds(const Samples& heard, const Samples& whole) {
  const auto wanted = core(whole);
  return std::search(heard.begin(), heard.end(), wanted.begin(), wanted.end()) != heard.end();
}

class PulseSound : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(std::getenv("SOUND_SERVER_PID_FILE"), nullptr) << "not under with-sound-server";
  }

  void play(const std::string& number) {
    const Bytes& wav = kept_.emplace_back(bank(number));
    output_.play({0, "", number, wav});
  }

  PulseConnection connection_{"Ventoria"};
  std::list<Bytes> kept_;
  std::vector<std::string> spoken_;
  bool quitting_ = false;
  int repaints_ = 0;
  int lacks_ = 0;
  std::function<void()> meanwhile_;
  PulseOutputLevel level_{connection_};
  PulseSoundOutput output_{
      connection_,
      level_,
      {[this] {
         ++repaints_;
         if (meanwhile_) meanwhile_();
       },
       [this] { return quitting_; },
       [this](const platform::SoundClip* clip) { spoken_.emplace_back(clip ? clip->spoken : "-"); },
       [this] { ++lacks_; }}};
};

// Every sample of every prompt is heard, in order and with hardly a gap between them.
TEST_F(PulseSound, PromptsFollowEachOtherWholeAndWithoutAGap) {
  const std::vector<std::string> chain{"101", "195", "196", "150", "101", "196"};
  ASSERT_TRUE(output_.hasDevice());
  Recording recording;
  for (const std::string& number : chain) play(number);
  const Samples heard = recording.samples();

  auto end = heard.begin();
  std::ptrdiff_t widest = 0;
  for (const std::string& number : chain) {
    SCOPED_TRACE(number);
    const Samples whole = decodeWav(bank(number));
    const auto wanted = core(whole);
    const auto at = std::search(end, heard.end(), wanted.begin(), wanted.end());
    ASSERT_NE(at, heard.end()) << "not heard whole";
    const auto begin =
        at - (wanted.data() - whole.data());  // with the silence that the recording begins with
    if (end != heard.begin()) {
      const auto added = std::distance(end, begin);
      widest = std::max(widest, added);
      EXPECT_GE(added, 0);
    }
    end = begin + static_cast<std::ptrdiff_t>(whole.size());
  }
  RecordProperty("widest_gap_in_samples", static_cast<int>(widest));
  EXPECT_LT(widest, 40 * static_cast<std::ptrdiff_t>(samplesPerMs));
  EXPECT_TRUE(std::none_of(end, heard.end(), sounding));
  EXPECT_EQ(spoken_, (std::vector<std::string>{"101", "-", "195", "-", "196", "-", "150", "-", "101", "-",
                                               "196", "-"}));
  EXPECT_GT(repaints_, 100);  // of about 900 ticks
}

// The server holds the stream after a while of silence, which cuts neither end of a prompt, nor a long one.
TEST_F(PulseSound, AfterALongSilencePromptsAreWhole) {
  Recording recording;
  std::ptrdiff_t from = 0;
  for (const bool settles : {false, true}) {
    play("196");
    play("128");  // longer than that while
    if (settles) output_.settle();
    const Samples heard = recording.samples();
    for (const char* number : {"196", "128"})
      EXPECT_TRUE(holds({heard.begin() + from, heard.end()}, decodeWav(bank(number)))) << number;
    EXPECT_TRUE(comes([] { return std::system("pactl list sink-inputs | grep -q 'Corked: yes'") == 0; }));
    output_.settle();
    from = static_cast<std::ptrdiff_t>(heard.size());
  }
}

TEST_F(PulseSound, FilesPlayWholeAndAMissingOneBeeps) {
  Recording recording;
  output_.playFile(bankPath("195"));
  Samples heard = recording.samples();
  EXPECT_TRUE(holds(heard, decodeWav(bank("195"))));

  const auto before = static_cast<std::ptrdiff_t>(heard.size());
  output_.playFile("/nonexistent/annonce.wav");
  heard = recording.samples();
  heard.erase(heard.begin(), heard.begin() + before);
  const auto beep = core(heard);
  EXPECT_NEAR(double(beep.size()), 200.0 * samplesPerMs, 5.0 * samplesPerMs);
  EXPECT_GT(*std::max_element(beep.begin(), beep.end()), 5000);
}

TEST_F(PulseSound, TheTailSoundsWhenTheProgramEnds) {
  Recording recording;
  Bytes wav = bank("101");
  wav.resize(wav.size() / 2);  // ends within a word, not in silence
  {
    PulseSoundOutput brief(connection_, level_, {});
    brief.play({101, "", "", wav});
  }
  EXPECT_TRUE(holds(recording.samples(), decodeWav(wav)));
}

TEST_F(PulseSound, QuittingCutsAPrompt) {
  Recording recording;
  meanwhile_ = [this] { quitting_ = repaints_ >= 20; };
  play("101");
  const Samples heard = recording.samples();
  EXPECT_LT(core(heard).size(), core(decodeWav(bank("101"))).size() / 2);
  EXPECT_EQ(spoken_.back(), "-");
  meanwhile_ = {};
  quitting_ = false;
  output_.play({0, "", "101", kept_.back()});  // decoded half way only
  EXPECT_TRUE(holds(recording.samples(), decodeWav(bank("101"))));
}

double peak(const Samples& samples, std::size_t channel) {
  int highest = 0;
  for (std::size_t i = channel; i < samples.size(); i += 2) highest = std::max<int>(highest, samples[i]);
  return highest;
}

TEST_F(PulseSound, ANewStreamHasTheListeningLevel) {
  Recording recording;
  level_.set(0x8000, 0x4000);
  play("101");
  const Samples heard = recording.samples();
  const Samples whole = decodeWav(bank("101"));
  EXPECT_NEAR(peak(heard, 0) / peak(whole, 0), 0.5, 0.01);
  EXPECT_NEAR(peak(heard, 1) / peak(whole, 1), 0.25, 0.01);
}

TEST_F(PulseSound, WithoutAServerThereIsNoDeviceUntilOneComes) {
  const std::string server = std::getenv("PULSE_SERVER");
  setenv("PULSE_SERVER", "unix:/nonexistent", 1);
  EXPECT_FALSE(output_.hasDevice());
  play("101");
  output_.playFile(bankPath("101"));
  EXPECT_TRUE(spoken_.empty());
  EXPECT_EQ(repaints_, 0);
  int attempts = 0;
  for (int i = 0; i < 200; ++i) {
    const pa_context* before = connection_.context();
    EXPECT_FALSE(output_.hasDevice());
    attempts += before != connection_.context();
  }
  EXPECT_LT(attempts, 20);  // most questions make none
  EXPECT_EQ(lacks_, 1);
  EXPECT_TRUE(level_.set(0x8000, 0x8000));  // nobody need try again: a stream that comes begins with it

  setenv("PULSE_SERVER", server.c_str(), 1);
  EXPECT_TRUE(comes([&] { return output_.hasDevice(); }));
  Recording recording;
  play("101");
  EXPECT_NEAR(peak(recording.samples(), 0) / peak(decodeWav(bank("101")), 0), 0.5, 0.01);
}

// A play returns even if the server takes no more sound, and the next server is found.
TEST_F(PulseSound, AServerThatDiesOrHangsIsOvercome) {
  for (const int harm : {SIGKILL, SIGSTOP}) {
    SCOPED_TRACE(harm);
    ASSERT_TRUE(output_.hasDevice());
    const pid_t server = serverPid();
    repaints_ = 0;
    meanwhile_ = [&] {
      if (repaints_ == 20) kill(server, harm);
    };
    play("101");
    EXPECT_GE(repaints_, 20);
    meanwhile_ = {};
    kill(server, SIGKILL);
    ASSERT_TRUE(comes([&] { return serverPid() != server && output_.hasDevice(); }));
    Recording recording;
    play("196");
    EXPECT_TRUE(holds(recording.samples(), decodeWav(bank("196"))));
  }
}

}  // namespace
}  // namespace devices
