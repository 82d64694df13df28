// Who speaks the prompts himself: what he presses, what he is told, what is kept.
#include "console/voice_recording.h"

#include <gmock/gmock.h>

#include <cmath>
#include <sstream>

#include "platform/fault.h"
#include "rehearsal/memory_file_system.h"
#include "support/faulty_file_system.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;

// Somebody who says a word of some seconds, with a pause before and behind it.
struct Speaker final : platform::Studio {
  bool microphone = true, loudspeaker = true, recording = false;
  double seconds = 1, loudness = 0.1;
  int played = 0;

  bool record(int) override { return recording = microphone; }
  std::vector<float> stop() override {
    recording = false;
    std::vector<float> samples(static_cast<std::size_t>((seconds + 1) * 22050));
    for (std::size_t i = 11025; i < samples.size() - 11025; ++i)
      samples[i] = static_cast<float>(loudness * std::sin(0.1 * double(i)));
    return samples;
  }
  bool play(std::span<const unsigned char>) override { return loudspeaker && ++played > 0; }
};

struct Case {
  std::string typed;     // '.' is Enter, capitals happen between
  std::string recorded;  // the numbers that lie in the folder afterwards
  std::string told;
  int played;
};

class Booth final : public console::Answers {
 public:
  explicit Booth(std::string typed) : typed_(std::move(typed)) {}

  char next() override {
    while (!typed_.empty()) {
      const char letter = typed_.front();
      typed_.erase(0, 1);
      if (letter == 'M') speaker.microphone = !speaker.microphone;
      if (letter == 'L') speaker.loudspeaker = false;
      if (letter == 'S') speaker.loudness = speaker.loudness > 0 ? 0 : 0.1;
      if (letter == 'T') speaker.seconds = 15.5;
      if (letter == 'O') speaker.loudness = 2;
      if (letter == 'D') disk.failFrom(support::FaultyFileSystem::Call::Write, 1);
      if (letter == 'H') disk.heal();
      if (letter < 'A' || letter > 'Z') return letter == '.' ? '\n' : letter;
    }
    return 0;
  }
  void forget() override {}
  std::string run() {
    std::ostringstream out;
    console::VoiceRecording(disk, speaker, *this, out, "/v").run();
    return out.str();
  }

  rehearsal::MemoryFileSystem memory;
  support::FaultyFileSystem disk{memory};
  Speaker speaker;

 private:
  std::string typed_;
};

TEST(VoiceRecordingTest, KeepsWhatIsKeptTellsWhatFailsAndLosesNothing) {
  const std::string kept = "1 sur 159 sont enregistrés dans « /v »";
  for (const Case& c : std::initializer_list<Case>{
           {"", "", "1/159  n° 101  « Cadence : dix tours par minute. »", 0},
           {".", "", "J'écoute", 0},
           {".q", "", "0 sur 159", 0},
           {"..", "", "  1,1 s\n", 1},
           {"..q", "", "0 sur 159", 1},
           {"...", "101", kept, 1},
           {"x.z.y.q", "101", kept, 1},
           {"...s...", "101 103", "2 sur 159", 2},
           {"..s...", "102", kept, 2},
           {"..r..e.", "101", kept, 3},
           {"M.M...q", "101", "Aucun micro", 1},
           {"L...", "101", "Aucun haut-parleur", 0},
           {"S..S...", "101", "Rien n'a été entendu", 1},
           {"T..sq", "", "plus de 15 secondes", 0},
           {"O...", "101", "trop fort", 1},
           {"..D.", "", "espace disque insuffisant", 1},
           {"..D.H.", "101", "espace disque insuffisant", 1},
       }) {
    SCOPED_TRACE(c.typed);
    Booth booth(c.typed);
    EXPECT_THAT(booth.run(), AllOf(HasSubstr(c.told), HasSubstr("sur 159 sont enregistrés dans « /v »")));
    std::string recorded;
    for (const std::string& name : booth.memory.list("/v"))
      recorded += (recorded.empty() ? "" : " ") + name.substr(0, name.find(".wav"));
    EXPECT_EQ(recorded, c.recorded);
    EXPECT_EQ(booth.speaker.played, c.played);
    EXPECT_FALSE(booth.speaker.recording);
  }
}

TEST(VoiceRecordingTest, GoesOnWhereItStopped) {
  Booth first("...s...");
  first.run();
  Booth second("s.......");
  second.memory.files = first.memory.files;
  second.memory.put("/v/104.wav", "what cannot be said is spoken anew");
  EXPECT_THAT(second.run(), AllOf(HasSubstr("2 sur 159 sont"), HasSubstr("\n2/159  n° 102"),
                                  HasSubstr("\n4/159  n° 104"), HasSubstr("\n5/159  n° 105"),
                                  HasSubstr("4 sur 159 sont"), testing::Not(HasSubstr("n° 103"))));
  EXPECT_EQ(second.memory.files.at("/v/101.wav"), first.memory.files.at("/v/101.wav"));

  Booth nowhere("...");
  nowhere.disk.failFrom(support::FaultyFileSystem::Call::MakeFolder, 1);
  EXPECT_THROW(nowhere.run(), platform::FileFault);
}

}  // namespace
