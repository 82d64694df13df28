// Music and recorder on the real devices: libmpv plays, the sound server records. A file that cannot be
// played is not opened, and orders to a device that is not open are ignored.
#pragma once

#include <chrono>
#include <map>
#include <memory>

#include "devices/mpv_library.h"
#include "devices/mpv_player.h"
#include "devices/pulse_output_level.h"
#include "devices/pulse_recorder.h"
#include "platform/file_system.h"
#include "platform/media_backend.h"
#include "platform/recording.h"

namespace devices {

class MpvMedia final : public platform::MediaBackend {
 public:
  MpvMedia(PulseConnection& connection, PulseOutputLevel& level, platform::FileSystem& files)
      : connection_(connection), level_(level), files_(files) {}

  // The player's library will soon be needed.
  void prepare() { library_.prepare(); }
  void openFile(const std::string& alias, const std::string& path) override;
  void openRecorder(const std::string& alias) override;
  void close(const std::string& alias) override { devices_.erase(alias); }
  void closeAll() override { devices_.clear(); }
  void play(const std::string& alias) override;
  void playFrom(const std::string& alias, std::int64_t position) override;
  void stop(const std::string& alias) override;
  void pause(const std::string& alias) override;
  void seek(const std::string& alias, std::int64_t position) override;
  void record(const std::string& alias) override;
  void save(const std::string& alias, const std::string& path) override;
  void setTimeFormat(const std::string& alias, platform::TimeFormat format) override;
  void setRecording(const std::string& alias, platform::RecordingFigure figure, int value) override;
  void setSpeed(const std::string& alias, int thousandths) override;
  void setVolume(const std::string& alias, int thousandths) override;
  void setAudible(const std::string& alias, bool audible) override;
  [[nodiscard]] std::string mode(const std::string& alias) override;
  [[nodiscard]] std::optional<std::int64_t> figure(const std::string& alias,
                                                   platform::MediaFigure figure) override;

 private:
  struct Device {
    std::unique_ptr<MpvPlayer> player;        // a recorder has one while it plays its take
    std::unique_ptr<PulseRecorder> recorder;  // null for a player of files
    platform::RecordingFormat format;
    platform::TimeFormat timeFormat = platform::TimeFormat::Milliseconds;

    [[nodiscard]] std::int64_t length() const;  // ms
    [[nodiscard]] std::int64_t position() const;
  };

  Device* find(const std::string& alias);
  // Waits for the disk, which may have to spin up first.
  void readEnds(const std::string& path) const;
  // A player of what libmpv finds there; null if it cannot be played.
  std::unique_ptr<MpvPlayer> open(std::string address);
  // The player of the opened file or of the recorder's take; null if there is nothing to play.
  MpvPlayer* playerOf(const std::string& alias);
  // Starts playing, with the program's level set before the first sample sounds.
  void playAtLevel(MpvPlayer& player);
  void restoreOutput(MpvPlayer& player);

  PulseConnection& connection_;
  PulseOutputLevel& level_;
  platform::FileSystem& files_;
  MpvLibrary library_;
  MpvEnds ends_;
  std::map<std::string, Device> devices_;
  std::map<std::string, int> volumes_;  // in thousandths, kept for later files of the same alias
  std::chrono::steady_clock::time_point checkedAt_{};  // when restoreOutput last looked
};

}  // namespace devices
