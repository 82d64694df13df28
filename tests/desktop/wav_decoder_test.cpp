#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>

#include "desktop/decode_wav.h"
#include "platform/wav_form.h"
#include "rehearsal/memory_file_system.h"
#include "voice/own_voice.h"

namespace devices {
namespace {

using Bytes = std::vector<unsigned char>;
using Samples = std::vector<std::int16_t>;

struct Format {
  const char* name;
  int rate;
  int channels;
  int coding;
  double tolerance;  // what the coding itself may cost, of full scale
  int hertz = 400;

  [[nodiscard]] double tone(int channel, double seconds) const {  // a quarter of the level in the second
    return (channel == 0 ? 0.5 : 0.125) * std::sin(2 * std::numbers::pi * hertz * seconds);
  }
};

// Writes one second of a tone to a file and returns its path.
std::string writeTone(const Format& format) {
  const auto path = std::filesystem::path(testing::TempDir()) / (std::string(format.name) + ".wav");
  std::vector<float> samples;
  for (int frame = 0; frame < format.rate; ++frame) {
    for (int channel = 0; channel < format.channels; ++channel) {
      samples.push_back(static_cast<float>(format.tone(channel, double(frame) / format.rate)));
    }
  }
  SF_INFO info{0, format.rate, format.channels, SF_FORMAT_WAV | format.coding, 0, 0};
  SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
  sf_writef_float(file, samples.data(), format.rate);
  sf_close(file);
  return path;
}

Bytes readAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

class WavFormats : public testing::TestWithParam<Format> {};

TEST_P(WavFormats, SoundTheSameFromMemoryAndFromDisk) {
  const Format& format = GetParam();
  const std::string path = writeTone(format);
  const Samples samples = support::decodeWav(readAll(path));

  // A coding in blocks pads the last block.
  EXPECT_NEAR(double(samples.size()), 2.0 * WavDecoder::sampleRate, 2.0 * WavDecoder::sampleRate / 20);
  double worst = 0;
  for (std::size_t frame = 500; frame < WavDecoder::sampleRate - 500U; ++frame) {
    for (int channel = 0; channel < 2; ++channel) {
      const double wanted =
          format.tone(format.channels == 1 ? 0 : channel, double(frame) / WavDecoder::sampleRate);
      const double heard = samples.at(frame * 2 + static_cast<std::size_t>(channel)) / 32768.0;
      worst = std::max(worst, std::abs(heard - wanted));
    }
  }
  EXPECT_LT(worst, format.tolerance);

  EXPECT_EQ(support::decodeWav(path, 998), samples);  // a piece size that divides nothing evenly
}

INSTANTIATE_TEST_SUITE_P(All, WavFormats,
                         testing::Values(Format{"bank", 11025, 1, SF_FORMAT_PCM_U8, 0.01},
                                         Format{"hiss", 11025, 1, SF_FORMAT_PCM_16, 0.02, 4700},
                                         Format{"wide", 22050, 2, SF_FORMAT_PCM_16, 0.001},
                                         Format{"packed", 22050, 1, SF_FORMAT_MS_ADPCM, 0.05},
                                         Format{"studio", 48000, 2, SF_FORMAT_PCM_24, 0.001},
                                         Format{"native", 44100, 2, SF_FORMAT_PCM_16, 0.0001},
                                         Format{"surround", 44100, 6, SF_FORMAT_PCM_16, 0.0001}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(WavDecoder, RefusesWhatIsNoSound) {
  Bytes noise(5000, 'x');
  Bytes cut = readAll(VENTORIA_SOURCE_DIR "/assets/voice/bank/101.wav");
  ASSERT_GT(cut.size(), 1000U);
  cut.resize(20);
  for (const Bytes& bytes : {Bytes{}, noise, cut}) EXPECT_TRUE(support::decodeWav(bytes).empty());
  EXPECT_FALSE(WavDecoder(std::string("/nonexistent.wav")).opened());
  EXPECT_FALSE(WavDecoder(std::string("/dev/zero")).opened());
}

// What the voice takes for a recording that can be said never ends in silence, whatever its header says.
TEST(WavDecoder, PlaysWhateverTheVoiceFindsGood) {
  rehearsal::MemoryFileSystem files;
  files.folders.insert("/v");
  voice::OwnVoice own(files);
  int good = 0;
  for (const char* name : {"words", "packed", "floats"}) {
    const Bytes whole =
        readAll(std::string(VENTORIA_SOURCE_DIR "/tests/fuzz/corpus/own_voice_fuzz/") + name + ".wav");
    for (std::size_t at = 12; at < std::min<std::size_t>(whole.size(), 110); ++at) {
      for (const char value : "\1\2\10\20\177\377") {
        Bytes changed = whole;
        changed[at] = static_cast<unsigned char>(value);
        files.put("/v/101.wav", {changed.begin(), changed.end()});
        own.lookIn("/v/");
        if (!own.has(101)) continue;
        ++good;
        WavDecoder decoder(changed);
        const auto length = platform::wavForm(changed)->length();
        ASSERT_TRUE(decoder.opened()) << name << ' ' << at << ' ' << int(value);
        EXPECT_NEAR(double(decoder.length().count()), double(length.count()), 6)
            << name << ' ' << at << ' ' << int(value);
      }
    }
  }
  EXPECT_GT(good, 500);
}

}  // namespace
}  // namespace devices
