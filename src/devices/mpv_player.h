// One piece of music or one take, played by libmpv without a window.
#pragma once

#include <mpv/client.h>

#include <cstdint>
#include <memory>
#include <string>

namespace devices {

class MpvPlayer {
 public:
  enum class Mode { Stopped, Paused, Playing };

  // A file's path, or any other address that the library takes. Waits until the length is known.
  explicit MpvPlayer(std::string address);
  // False: there is nothing in it to play.
  [[nodiscard]] bool opened() const { return opened_; }

  void play();
  void stop() { holdAs(Mode::Stopped); }
  void pause();
  void seek(std::int64_t milliseconds);  // leaves it stopped
  void setSpeed(double factor);
  void setVolume(double amplitude);  // 1 is the piece's own
  void setAudible(bool audible);
  // Whether nobody hears what is played, since there is no sound server.
  [[nodiscard]] bool unheard();
  // Waits until the stream of sound is open, at the server or to nowhere; nothing of it has sounded yet.
  void awaitOutput();
  // Looks for a sound server anew; what it had been given already is not played again.
  void reopenOutput();

  [[nodiscard]] Mode mode();
  [[nodiscard]] std::int64_t length() const { return length_; }  // ms
  // The length exactly once the piece has ended, and only then.
  [[nodiscard]] std::int64_t position();

 private:
  struct Destroy {
    void operator()(mpv_handle* handle) const { mpv_terminate_destroy(handle); }
  };

  bool load(std::int64_t from);
  void holdAs(Mode mode);
  void setFlag(const char* property, bool on);
  void handleEvents();
  void expectPosition(std::int64_t position);
  void handle(const mpv_event& event);

  std::string address_;
  std::unique_ptr<mpv_handle, Destroy> handle_;
  bool opened_ = false;
  bool loaded_ = false;
  bool ended_ = false;
  std::int64_t length_ = 0;
  std::int64_t sought_ = -1;  // the target of the last seek, until the piece plays on from it; -1: none
  bool arrived_ = false;
  Mode mode_ = Mode::Stopped;
};

}  // namespace devices
