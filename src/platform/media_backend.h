// What stands behind the media commands: devices under names that the caller chose.
//
// A device is a player of one file or the recorder. A call for a name that is not open, or that the device
// cannot carry out, does nothing. Positions and lengths are in the device's time format, milliseconds at
// first.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

enum class TimeFormat { Milliseconds, Bytes };
enum class MediaFigure { Length, Position, Channels, BitsPerSample, BytesPerSecond };
enum class RecordingFigure { SamplesPerSecond, BitsPerSample, Channels };

class MediaBackend {
 public:
  virtual ~MediaBackend() = default;

  // A file that cannot be read does not open. A name that is open already stays as it is.
  virtual void openFile(const std::string& alias, const std::string& path) = 0;
  virtual void openRecorder(const std::string& alias) = 0;
  virtual void close(const std::string& alias) = 0;
  virtual void closeAll() = 0;

  virtual void play(const std::string& alias) = 0;  // goes on from where it stands
  virtual void playFrom(const std::string& alias, std::int64_t position) = 0;
  virtual void stop(const std::string& alias) = 0;  // keeps the position
  virtual void pause(const std::string& alias) = 0;
  virtual void seek(const std::string& alias, std::int64_t position) = 0;  // leaves it stopped
  virtual void record(const std::string& alias) = 0;
  virtual void save(const std::string& alias, const std::string& path) = 0;

  virtual void setTimeFormat(const std::string& alias, TimeFormat format) = 0;
  virtual void setRecording(const std::string& alias, RecordingFigure figure, int value) = 0;
  virtual void setSpeed(const std::string& alias, int thousandths) = 0;
  virtual void setVolume(const std::string& alias, int thousandths) = 0;
  virtual void setAudible(const std::string& alias, bool audible) = 0;

  // "playing", "stopped", "paused" or "recording"; empty where nothing of that name is open.
  [[nodiscard]] virtual std::string mode(const std::string& alias) = 0;
  [[nodiscard]] virtual std::optional<std::int64_t> figure(const std::string& alias, MediaFigure figure) = 0;
};

}  // namespace platform
