// One piece of music or one take, played by libmpv without a window. Orders are not waited for. Questions
// are, for a moment, but not while libmpv owes an answer: what it said last then stands.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "devices/mpv_library.h"

namespace devices {

class MpvPlayer {
 public:
  enum class Mode { Stopped, Paused, Playing };

  // Opens a file's path, or any other address that libmpv accepts; waits up to 500 ms until its length is
  // known.
  MpvPlayer(const MpvFunctions& mpv, MpvEnds& ends, std::string address);
  // False if it cannot be played: the other functions must not be called then.
  [[nodiscard]] bool opened() const { return opened_; }

  void play();
  void stop() { holdAs(Mode::Stopped); }
  void pause();
  void seek(std::int64_t milliseconds);  // it is stopped afterwards
  void setSpeed(double factor);
  void setVolume(double amplitude);  // 1 is as loud as recorded
  void setAudible(bool audible);
  // Whether the sound goes nowhere because there was no sound server.
  [[nodiscard]] bool unheard();
  // Waits up to 300 ms until the output is open. To be called before play(), so that a level can still be
  // set.
  void awaitOutput();
  // Looks for a sound server again. Sound that went to the old output is not repeated.
  void reopenOutput();

  [[nodiscard]] Mode mode();
  [[nodiscard]] std::int64_t length() const { return length_; }  // ms
  // ms; equal to length() only once the piece has ended.
  [[nodiscard]] std::int64_t position();

 private:
  struct End {
    const MpvFunctions* mpv;
    MpvEnds* ends;
    void operator()(mpv_handle* handle) const { ends->end(*mpv, handle); }
  };
  enum Question : std::uint64_t { Length, Place, Output };
  struct Answer {
    bool awaited = false;
    double number = 0;
    std::string text;
  };

  bool load(std::int64_t from);
  void holdAs(Mode mode);
  void setFlag(const char* property, bool on);
  void setNumber(const char* property, double number);
  void order(std::uint64_t number, std::initializer_list<const char*> words);
  const Answer& ask(Question question);
  [[nodiscard]] bool owesAnswer() const;
  void await(std::chrono::milliseconds patience, const std::function<bool()>& done);
  void handleEvents();
  void expectPosition(std::int64_t position);
  void handle(const mpv_event& event);
  void keep(const mpv_event& reply);

  const MpvFunctions& mpv_;
  std::string address_;
  std::unique_ptr<mpv_handle, End> handle_;
  bool opened_ = false;
  bool loaded_ = false;
  bool ended_ = false;
  std::int64_t length_ = 0;
  std::int64_t sought_ = -1;  // ms, target of the last seek until it plays on from there; else -1
  int seeking_ = 0;           // seeks that libmpv has not begun
  bool arrived_ = false;
  Mode mode_ = Mode::Stopped;
  std::array<Answer, 3> answers_;
};

}  // namespace devices
