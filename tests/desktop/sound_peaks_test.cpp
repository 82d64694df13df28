#include "devices/sound_peaks.h"

#include <gmock/gmock.h>

#include <fstream>

#include "platform/recording.h"

namespace devices {
namespace {

TEST(SoundPeaks, HasTheLoudestOfEachPartOfAFile) {
  std::vector<unsigned char> samples(800, 128);
  samples[150] = 0;    // all the way down
  samples[750] = 192;  // half way up
  const std::string path = testing::TempDir() + "/peaks.wav";
  const std::vector<char> wav = platform::wavFile({}, samples);
  std::ofstream(path, std::ios::binary).write(wav.data(), static_cast<std::streamsize>(wav.size()));
  EXPECT_THAT(peaksOf(path, 8), testing::ElementsAre(0, 1, 0, 0, 0, 0, 0, 0.5F));
  EXPECT_THAT(peaksOf("/nowhere.wav", 8), testing::IsEmpty());
}

}  // namespace
}  // namespace devices
