// Reads a WAV file of any format piece by piece, from memory or disk, as 16 bit stereo at 44100 Hz.
#pragma once

#include <samplerate.h>
#include <sndfile.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace devices {

class WavDecoder {
 public:
  static constexpr int sampleRate = 44100;
  static constexpr int channelCount = 2;

  // The bytes must outlive the decoder.
  explicit WavDecoder(std::span<const unsigned char> wav);
  explicit WavDecoder(const std::string& path);
  WavDecoder(const WavDecoder&) = delete;
  WavDecoder& operator=(const WavDecoder&) = delete;

  // False if the file cannot be played.
  [[nodiscard]] bool opened() const { return file_ != nullptr; }
  // How long the whole file sounds.
  [[nodiscard]] std::chrono::milliseconds length() const;
  // The next samples, left and right in turn. Returns how many; 0 at the end.
  std::size_t read(std::span<std::int16_t> samples);

 private:
  struct Memory {
    std::span<const unsigned char> bytes;
    std::size_t at = 0;
  };
  struct CloseFile {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };
  struct FreeConverter {
    void operator()(SRC_STATE* state) const { src_delete(state); }
  };

  static SF_VIRTUAL_IO memoryFile();
  void prepare();
  long fill(float** data, std::size_t wanted);

  Memory memory_;
  SF_INFO info_{};
  std::unique_ptr<SNDFILE, CloseFile> file_;
  std::unique_ptr<SRC_STATE, FreeConverter> converter_;  // null if the rate is right already
  int channels_ = 0;                                     // that are kept: 1 or 2
  std::vector<float> input_;
  std::vector<float> output_;
};

}  // namespace devices
