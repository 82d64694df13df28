// Prompts spoken at a real sound server's microphone, and heard from the program afterwards. Run it under
// with-sound-server.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>

#include "console/voice_recording.h"
#include "desktop/decode_wav.h"
#include "desktop/desktop_program.h"
#include "desktop/loudspeaker.h"
#include "devices/pulse_studio.h"
#include "disk/disk_file_system.h"
#include "platform/wav_form.h"
#include "rehearsal/rehearsals.h"
#include "rehearsal/session_ride.h"
#include "voice/sound_bank.h"
#include "voice/spoken_take.h"
#include "voice/wav_samples.h"
#include "widgets/qt_text.h"

namespace {

using support::Samples;

std::string text(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Speaks two prompts by playing others at the microphone, faintly, and passes the rest over.
struct Speaker final : console::Answers {
  explicit Speaker(const std::ostringstream& what) : shown(what) {}

  char next() override {
    const std::string all = shown.str();
    const std::string number = all.substr(all.rfind("n° ") + std::string("n° ").size(), 3);
    if (number != "191" && number != "199") return 's';
    if (all.substr(all.rfind('\n')).find("J'écoute") == std::string::npos) return '\n';
    const std::string other = number == "191" ? "118" : "196";
    const std::string command = "paplay --device=test_mic --volume=20000 " VENTORIA_SOURCE_DIR
                                "/assets/voice/bank/" +
                                other + ".wav && sleep 0.4";
    EXPECT_EQ(std::system(command.c_str()), 0);  // NOLINT(cert-env33-c)
    return '\n';
  }
  void forget() override {}

  const std::ostringstream& shown;
};

// Sample by sample, but for the silence at both ends.
bool soundsIn(const Samples& heard, const Samples& prompt) {
  const auto loud = [](std::int16_t sample) { return std::abs(sample) > 50; };
  const auto first = std::find_if(prompt.begin(), prompt.end(), loud);
  const auto last = std::find_if(prompt.rbegin(), std::make_reverse_iterator(first), loud).base();
  return std::search(heard.begin(), heard.end(), first, last) != heard.end();
}

TEST(OwnVoiceSound, IsRecordedAsLoudAsTheBankAndSaidByTheProgram) {
  ASSERT_NE(std::getenv("SOUND_SERVER_PID_FILE"), nullptr) << "not under with-sound-server";
  const QTemporaryDir folder;
  const std::string home = widgets::fromQt(folder.path());
  disk::DiskFileSystem files;
  std::ostringstream out;
  {
    devices::PulseStudio studio([] { return false; });
    Speaker speaker(out);
    console::VoiceRecording(files, studio, speaker, out, home + "/voix").run();
  }
  EXPECT_NE(out.str().find("\n2 sur 159"), std::string::npos) << out.str();
  std::map<std::string, std::chrono::milliseconds> lengths;
  for (const auto& [number, spoken] : {std::pair{"191", 118}, {"199", 196}}) {
    SCOPED_TRACE(number);
    const std::string wav = text(home + "/voix/" + number + ".wav");
    const std::vector<unsigned char> bytes(wav.begin(), wav.end());
    const auto form = platform::wavForm(bytes);
    ASSERT_TRUE(form);
    const auto samples = voice::samplesOf(*form, std::span(bytes).subspan(form->dataAt));
    EXPECT_NEAR(voice::activeLevel(samples, form->rate / 50), voice::bankLevel, 1);
    EXPECT_LT(voice::peakOf(samples), 0.9);
    const auto wanted = platform::wavForm(voice::promptByNumber(spoken)->wav)->length();
    EXPECT_NEAR(double(form->length().count()), double(wanted.count()), 80);  // ms
    lengths[number] = form->length();
  }

  int count = 1;
  char name[] = "ventoria";
  char* words[] = {name, nullptr};
  const QApplication application(count, words);
  support::Recording recording;
  desktop::DesktopProgram program(home, widgets::ThemeMode::Dark);
  ASSERT_TRUE(program.start());
  EXPECT_TRUE(soundsIn(recording.samples(), support::decodeWav(home + "/voix/199.wav")));

  const model::WholeRide ride{
      rehearsal::orderOf(files, VENTORIA_SOURCE_DIR "/assets/sessions/Petit essai.tq2"), {}, {}};
  const auto sounds = rehearsal::Rehearsals(files, home).whole(ride).sounds;
  ASSERT_EQ(sounds.front().prompt, 191);
  EXPECT_EQ(sounds.front().ends - sounds.front().begins, lengths["191"]);
}

}  // namespace
