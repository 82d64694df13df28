// Records what the loudspeaker of with-sound-server plays.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "desktop/comes.h"
#include "devices/wav_decoder.h"

namespace support {

using Samples = std::vector<std::int16_t>;

inline constexpr std::size_t samplesPerMs =
    devices::WavDecoder::sampleRate * devices::WavDecoder::channelCount / 1000;

inline pid_t serverPid() {
  pid_t pid = 0;
  std::ifstream(std::getenv("SOUND_SERVER_PID_FILE")) >> pid;
  return pid;
}

// Records from its construction on.
class Recording {
 public:
  Recording() {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    std::string words[] = {
        "parec",        "--device=test_out.monitor", "--raw", "--format=s16le", "--rate=44100",
        "--channels=2", "--latency-msec=5"};
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    EXPECT_EQ(posix_spawnp(&process_, "parec", &actions, nullptr, arguments.data(), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
    waitForMore(100 * samplesPerMs);
  }
  ~Recording() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
  }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  // All that was played until now, and in the next half second.
  Samples samples() {
    waitForMore(500 * samplesPerMs);
    std::ifstream file(path_, std::ios::binary);
    const std::string raw(std::istreambuf_iterator<char>(file), {});
    Samples samples(raw.size() / 2);
    std::copy_n(raw.data(), samples.size() * 2, reinterpret_cast<char*>(samples.data()));
    return samples;
  }

 private:
  std::uintmax_t size() const {
    std::error_code none;
    const auto bytes = std::filesystem::file_size(path_, none);
    return none ? 0 : bytes / 2;
  }
  void waitForMore(std::size_t count) const {
    const auto from = size();
    EXPECT_TRUE(comes([&] { return size() >= from + count; })) << "the loudspeaker gives nothing";
  }

  std::string path_ = testing::TempDir() + "/heard-" + std::to_string(getpid()) + ".raw";
  pid_t process_ = 0;
};

}  // namespace support
