// Music and recorder without a device: files run on the clock, the microphone hears a tone that comes and
// goes.
#pragma once

#include <map>

#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/media_backend.h"
#include "platform/media_commands.h"
#include "platform/recording.h"
#include "rehearsal/journal.h"
#include "rehearsal/simulated_machine.h"

namespace rehearsal {

class SimulatedMedia final : public platform::MediaBackend {
 public:
  SimulatedMedia(const platform::Clock& clock, platform::FileSystem& files, const SimulatedMachine& machine)
      : clock_(clock), files_(files), machine_(machine) {}

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
  void setVolume(const std::string&, int) override {}  // nothing sounds
  void setAudible(const std::string&, bool) override {}
  [[nodiscard]] std::string mode(const std::string& alias) override;
  [[nodiscard]] std::optional<std::int64_t> figure(const std::string& alias,
                                                   platform::MediaFigure figure) override;

 private:
  enum class Mode { Stopped, Paused, Playing, Recording };
  struct Device {
    bool recorder = false;
    std::int64_t length = 0;  // ms
    std::int64_t position = 0;
    Mode mode = Mode::Stopped;
    platform::Instant since{0};  // when `position` was right
    int speed = 1000;
    platform::TimeFormat timeFormat = platform::TimeFormat::Milliseconds;
    platform::RecordingFormat format;
  };

  // The device as it stands now; null where nothing of that name is open.
  Device* now(const std::string& alias);
  void become(const std::string& alias, Mode mode);
  [[nodiscard]] static std::int64_t milliseconds(const Device& device, std::int64_t inItsFormat);
  [[nodiscard]] static std::int64_t inItsFormat(const Device& device, std::int64_t milliseconds);

  const platform::Clock& clock_;
  platform::FileSystem& files_;
  const SimulatedMachine& machine_;
  std::map<std::string, Device> devices_;
};

// Keeps each command, and what it answered, in the journal.
class JournaledMedia final : public platform::MediaCommands {
 public:
  JournaledMedia(platform::MediaCommands& media, Journal& journal) : media_(media), journal_(journal) {}
  std::string send(const std::string& command) override;
  void workIn(const std::string& folder) override { media_.workIn(folder); }

 private:
  platform::MediaCommands& media_;
  Journal& journal_;
};

}  // namespace rehearsal
