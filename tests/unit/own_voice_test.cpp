// The rider's own voice: which recordings are said instead of the bank's, and how a take becomes one.
#include "voice/own_voice.h"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <numbers>
#include <numeric>
#include <random>

#include "rehearsal/rehearsals.h"
#include "rehearsal/session_ride.h"
#include "support/session_bytes.h"
#include "support/simulated_program.h"
#include "voice/sound_bank.h"
#include "voice/spoken_take.h"
#include "voice/wav_samples.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string number(std::uint64_t value, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  return bytes;
}

struct Made {
  const char* what;
  unsigned code, bits, channels, rate;
  double seconds, level;
  const char* told;  // "": it is said
};

// A tone with a header of that code; 0xFFFE holds whole numbers behind the longer header.
std::string made(const Made& m) {
  std::string data;
  for (int i = 0; i < std::lround(m.seconds * m.rate); ++i) {
    const double wave = voice::amplitudeOf(m.level) * std::sin(2 * std::numbers::pi * 300 * i / m.rate);
    const auto whole = static_cast<std::uint64_t>(std::llround(wave * std::exp2(m.bits - 1) * (1 - 1e-9)) +
                                                  (m.bits == 8 ? 128 : 0));
    const std::uint64_t sample = m.code != 3    ? whole
                                 : m.bits == 32 ? std::bit_cast<std::uint32_t>(static_cast<float>(wave))
                                                : std::bit_cast<std::uint64_t>(wave);
    for (unsigned c = 0; c < m.channels; ++c) data += number(sample, m.bits / 8);
  }
  const unsigned frame = m.channels * m.bits / 8;
  std::string form = number(m.code, 2) + number(m.channels, 2) + number(m.rate, 4) +
                     number(std::uint64_t{m.rate} * frame, 4) + number(frame, 2) + number(m.bits, 2);
  if (m.code == 0xFFFE)
    form += number(22, 2) + number(m.bits, 2) + number(0, 4) + number(1, 6) + number(0x800010, 4) +
            number(0x719B3800AA00, 6);
  return "RIFF" + number(28 + form.size() + data.size(), 4) + "WAVEfmt " + number(form.size(), 4) + form +
         "data" + number(data.size(), 4) + data;
}

std::string text(std::span<const unsigned char> bytes) {
  return {bytes.begin(), bytes.end()};
}

const std::string threeSeconds = made({"", 1, 16, 1, 22050, 3, -20, ""});

TEST(OwnVoiceTest, WhatCanBeHeardIsSaidAndAllElseIsToldAndTheBankSpeaks) {
  rehearsal::MemoryFileSystem memory;
  support::FaultyFileSystem disk(memory);
  voice::OwnVoice own(disk);
  const auto check = [&](const std::string& what, const std::string& bytes, const std::string& told) {
    SCOPED_TRACE(what);
    memory.files.clear();
    memory.folders.insert("/v");
    memory.put("/v/118 à ma façon.WAV", bytes);
    own.lookIn("/v/");
    EXPECT_EQ(own.has(118), told.empty());
    EXPECT_TRUE(text(own.prompt(118)->wav) == (told.empty() ? bytes : text(voice::promptByNumber(118)->wav)));
    EXPECT_EQ(own.prompt(118)->spoken, voice::promptByNumber(118)->spoken);
    const std::string complaint = own.complaint();
    EXPECT_EQ(complaint.empty(), told.empty());
    EXPECT_THAT(complaint, HasSubstr(told.empty() ? "" : "\n" + told + " : 118 à ma façon.WAV."));
  };
  const std::string noSound = "Pas un son WAV";
  for (const Made& m :
       std::initializer_list<Made>{{"bytes", 1, 8, 1, 11025, 1, -20, ""},
                                   {"usual", 1, 16, 2, 44100, 1, -48, ""},
                                   {"studio", 1, 24, 2, 96000, 1, -48, ""},
                                   {"wide", 1, 32, 1, 8000, 1, -48, ""},
                                   {"floats", 3, 32, 2, 48000, 1, -48, ""},
                                   {"doubles", 3, 64, 1, 48000, 1, -48, ""},
                                   {"longer header", 0xFFFE, 24, 2, 48000, 1, -48, ""},
                                   {"just short enough", 1, 16, 1, 22050, 15, -20, ""},
                                   {"too long", 1, 16, 1, 22050, 15.01, -20, "Plus de 15 secondes"},
                                   {"nothing", 1, 16, 1, 22050, 0, -20, "Silence"},
                                   {"silent bytes", 1, 8, 1, 11025, 1, -90, "Silence"},
                                   {"faint", 1, 16, 2, 44100, 1, -52, "Silence"},
                                   {"faint floats", 3, 32, 2, 44100, 1, -52, "Silence"},
                                   {"six channels", 1, 16, 6, 48000, 1, -20, "Pas un son WAV"},
                                   {"telephone", 7, 8, 1, 8000, 1, -20, "Pas un son WAV"}})
    check(m.what, made(m), m.told);
  check("packed", text(voice::promptByNumber(196)->wav), "");
  check("empty", "", noSound);
  check("other", std::string(5000, 'x'), noSound);
  check("cut", threeSeconds.substr(0, 20), noSound);

  // The plain name comes first; another one serves where that cannot, and only what replaces nothing is told.
  memory.put("/v/118.wav", "x");
  memory.put("/v/999.wav", threeSeconds);
  memory.put("/v/2026-01-01 notes.txt", "x");
  memory.put("/v/118 à ma façon.WAV", threeSeconds);
  own.lookIn("/v/");
  EXPECT_TRUE(own.has(118));
  EXPECT_THAT(own.complaint(),
              AllOf(HasSubstr("Aucune annonce de ce numéro : 999.wav."), Not(HasSubstr("118"))));
  EXPECT_EQ(own.prompt(999), nullptr);

  // A folder of music is told in a message that still fits a screen.
  for (int track = 1; track < 100; ++track)
    memory.put("/v/" + std::to_string(track) + std::string(40, ' '), "x");
  own.lookIn("/v/");
  EXPECT_LT(own.complaint().size(), 1800U);
  EXPECT_THAT(own.complaint(), HasSubstr(" et 66 autres."));

  // What vanishes is the bank's again, unless it has been said before.
  memory.put("/v/119.wav", threeSeconds);
  own.lookIn("/v/");
  const auto* said = own.prompt(118);
  memory.files.clear();
  EXPECT_EQ(own.prompt(118), said);
  EXPECT_EQ(text(said->wav), threeSeconds);
  EXPECT_EQ(own.prompt(119), voice::promptByNumber(119));
  memory.put("/v/118.wav", threeSeconds);
  own.lookIn("/v/");
  disk.failFrom(support::FaultyFileSystem::Call::Open, 1);
  EXPECT_THAT(own.complaint(), HasSubstr("Illisible : 118.wav."));
  EXPECT_EQ(own.prompt(118), voice::promptByNumber(118));
  disk.failFrom(support::FaultyFileSystem::Call::List, 1);
  own.lookIn("/v/");
  EXPECT_THAT(own.complaint(), HasSubstr("Impossible de lire le dossier « /v » : accès refusé."));
}

// Prompt 199 is the one that this start says twice, 191 the one that a countdown begins with.
TEST(OwnVoiceTest, TheProgramSaysThemAndARehearsalTakesAsLong) {
  support::SimulatedProgram program(support::settingsOn, std::chrono::hours(12), rehearsal::SoundMode::Timed);
  program.memory.folders.insert("/d/voix");
  for (const char* name : {"199", "191"})
    program.memory.put("/d/voix/" + std::string(name) + ".wav", threeSeconds);
  program.memory.put("/d/voix/200.wav", "x");
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.loop().clock().now(), std::chrono::seconds(6));
  EXPECT_THAT(program.run("journal"),
              AllOf(HasSubstr("0.000\tprompt\t199"), HasSubstr("6.000\tdialog\tmessage\tVotre"),
                    HasSubstr("200.wav")));
  EXPECT_THAT(program.run("press MainForm.mnsons\ntick MainForm.Check2 0\nadvance 5\njournal dialog"), "");

  program.memory.put("/s.tq2", support::session(1, 1));
  const model::Timeline ride = rehearsal::Rehearsals(program.memory, "/d")
                                   .whole({rehearsal::orderOf(program.memory, "/s.tq2"),
                                           rehearsal::settingsIn(program.memory, "/d"),
                                           {}});
  const auto start = std::find_if(ride.sounds.begin(), ride.sounds.end(),
                                  [](const model::TimedSound& sound) { return sound.prompt == 191; });
  ASSERT_NE(start, ride.sounds.end());
  EXPECT_EQ(start->ends - start->begins, std::chrono::seconds(3));
}

std::vector<float> samplesOf(const platform::SoundClip& prompt) {
  const auto form = platform::wavForm(prompt.wav);
  return voice::samplesOf(*form, prompt.wav.subspan(form->dataAt, form->dataSize));
}

double levelOf(const std::vector<float>& samples, unsigned samplesPerSecond) {
  return voice::activeLevel(samples, samplesPerSecond / 50);
}

TEST(SpokenTakeTest, EveryPromptOfTheBankIsAsLoudAsTakesAreMade) {
  for (const platform::SoundClip& prompt : voice::prompts()) {
    const auto form = platform::wavForm(prompt.wav);
    EXPECT_NEAR(levelOf(samplesOf(prompt), form->rate * form->channels), voice::bankLevel, 0.5)
        << prompt.number;
  }
}

// A prompt of the bank is spoken over a room's noise, between the clicks of the key that begins and ends the
// take.
struct Room {
  const char* what;
  double gain, noise;  // dB, dBFS
  double offset;
  bool clicks;
};

class Takes : public testing::TestWithParam<Room> {};

TEST_P(Takes, AreCutToTheSpeechAndMadeAsLoudAsTheBank) {
  constexpr int rate = 22050;
  const Room& room = GetParam();
  std::mt19937 random(1);  // NOLINT(cert-msc*)
  std::normal_distribution<float> noise(0, 1);
  std::vector<float> take(4 * rate, static_cast<float>(room.offset));
  const std::vector<float> speech = samplesOf(*voice::promptByNumber(196));
  const auto at = take.begin() + rate;
  for (std::size_t i = 0; i < speech.size(); ++i)
    at[static_cast<long>(i)] += static_cast<float>(voice::amplitudeOf(room.gain)) * speech[i];
  for (const double second : {0.1, 3.8}) {
    for (int i = 0; room.clicks && i < rate / 100; ++i)
      take[static_cast<std::size_t>(second * rate) + static_cast<std::size_t>(i)] += 0.3F * noise(random);
  }
  for (float& sample : take)
    sample =
        std::clamp(sample + static_cast<float>(voice::amplitudeOf(room.noise)) * noise(random), -1.0F, 1.0F);

  const std::vector<float> prompt = voice::asPrompt(take, rate);
  // The bank's own prompt has the same margins.
  EXPECT_NEAR(static_cast<double>(prompt.size()), static_cast<double>(speech.size()), 0.06 * rate);
  EXPECT_NEAR(levelOf(prompt, rate), voice::bankLevel, 0.1);
  EXPECT_LE(voice::peakOf(prompt), voice::amplitudeOf(voice::highestPeak) * 1.0001);
  EXPECT_LT(std::abs(std::accumulate(prompt.begin(), prompt.end(), 0.0)) / rate, 0.01);
  EXPECT_LT(std::abs(prompt.front()) + std::abs(prompt.back()), 0.001);
}

INSTANTIATE_TEST_SUITE_P(All, Takes,
                         testing::Values(Room{"studio", 0, -120, 0, false}, Room{"usual", -15, -60, 0, true},
                                         Room{"far", -30, -70, 0.02, false}, Room{"noisy", -10, -45, 0, true},
                                         Room{"tooNear", 16, -50, 0, true}),
                         [](const auto& test) { return test.param.what; });

TEST(SpokenTakeTest, WhereNothingWasSaidThereIsNoPrompt) {
  constexpr int rate = 22050;
  std::mt19937 random(1);  // NOLINT(cert-msc*)
  std::normal_distribution<float> noise(0, 1);
  std::vector<float> hiss(2 * rate), hum(2 * rate), clicks(2 * rate), muted(2 * rate, 0.1F);
  for (std::size_t i = 0; i < hiss.size(); ++i) {
    hiss[i] = 0.05F * noise(random);
    hum[i] = 0.1F * static_cast<float>(std::sin(2 * std::numbers::pi * 50 * double(i) / rate));
    if (i % rate > 1000 && i % rate < 1400) clicks[i] = 10 * hiss[i];
  }
  for (const auto& take : {std::vector<float>{}, std::vector<float>(100), hiss, hum, clicks, muted})
    EXPECT_TRUE(voice::asPrompt(take, rate).empty());
}

}  // namespace
