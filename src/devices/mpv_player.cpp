#include "devices/mpv_player.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <clocale>
#include <cmath>
#include <string_view>
#include <utility>

namespace devices {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 3s;                 // for a disk that must spin up first
constexpr std::string_view nowhere = "null";  // libmpv's output that drops all sound

constexpr std::array<std::pair<const char*, const char*>, 14> startOptions{{
    {"config", "no"},
    {"terminal", "no"},
    {"load-scripts", "no"},
    {"ytdl", "no"},
    {"access-references", "no"},
    {"input-default-bindings", "no"},
    {"vid", "no"},
    {"demuxer", "lavf"},  // the other readers are for films and playlists, and search damaged files for long
    {"idle", "yes"},
    {"keep-open", "no"},
    {"pause", "yes"},
    {"hr-seek", "yes"},
    {"ao", "pulse,null"},
    {"audio-client-name", "Ventoria"},
}};

mpv_handle* newHandle(const MpvFunctions& mpv) {
  std::setlocale(LC_NUMERIC, "C");  // libmpv does not start with any other
  mpv_handle* handle = mpv.create();
  if (handle == nullptr) return nullptr;
  for (const auto& [name, value] : startOptions) mpv.setOption(handle, name, value);
  if (mpv.initialize(handle) >= 0) return handle;
  mpv.destroy(handle);
  return nullptr;
}

std::string seconds(std::int64_t milliseconds) {
  const std::string rest = std::to_string(milliseconds % 1000);
  return std::to_string(milliseconds / 1000) + "." + std::string(3 - rest.size(), '0') + rest;
}

}  // namespace

MpvPlayer::MpvPlayer(const MpvFunctions& mpv, std::string address)
    : mpv_(mpv), address_(std::move(address)), handle_(newHandle(mpv), mpv.destroy) {
  if (!handle_ || !load(0)) return;
  double duration = 0;
  mpv_.getProperty(handle_.get(), "duration", MPV_FORMAT_DOUBLE, &duration);
  length_ = std::llround(std::max(duration, 0.0) * 1000);
  opened_ = true;
}

// Waits until the piece is ready at `from`, in ms. False if it cannot be read.
bool MpvPlayer::load(std::int64_t from) {
  mpv_.setText(handle_.get(), "start", seconds(from).c_str());
  std::array<const char*, 3> command{"loadfile", address_.c_str(), nullptr};
  loaded_ = ended_ = false;
  expectPosition(from);
  if (mpv_.command(handle_.get(), command.data()) < 0) return false;
  const auto patienceEnds = std::chrono::steady_clock::now() + patience;
  while (!loaded_ && !ended_ && std::chrono::steady_clock::now() < patienceEnds) {
    handle(*mpv_.waitEvent(handle_.get(), 0.1));
  }
  return loaded_;
}

void MpvPlayer::handle(const mpv_event& event) {
  switch (event.event_id) {
    case MPV_EVENT_FILE_LOADED:
      loaded_ = true;
      break;
    case MPV_EVENT_PLAYBACK_RESTART:
      arrived_ = true;
      break;
    case MPV_EVENT_END_FILE: {
      const auto reason = static_cast<const mpv_event_end_file*>(event.data)->reason;
      if (reason != MPV_END_FILE_REASON_EOF && reason != MPV_END_FILE_REASON_ERROR) break;
      ended_ = true;
      mode_ = Mode::Stopped;
      break;
    }
    default:
      break;
  }
}

void MpvPlayer::handleEvents() {
  for (;;) {
    const mpv_event* event = mpv_.waitEvent(handle_.get(), 0);
    if (event->event_id == MPV_EVENT_NONE) break;
    handle(*event);
  }
  if (arrived_ && mode_ == Mode::Playing) sought_ = -1;
}

void MpvPlayer::expectPosition(std::int64_t position) {
  sought_ = position;
  arrived_ = false;
}

void MpvPlayer::setFlag(const char* property, bool on) {
  int value = on ? 1 : 0;
  mpv_.setProperty(handle_.get(), property, MPV_FORMAT_FLAG, &value);
}

void MpvPlayer::play() {
  handleEvents();
  if (ended_) return;
  setFlag("pause", false);
  mode_ = Mode::Playing;
}

void MpvPlayer::holdAs(Mode mode) {
  handleEvents();
  setFlag("pause", true);
  mode_ = mode;
}

void MpvPlayer::pause() {
  if (this->mode() == Mode::Playing) holdAs(Mode::Paused);
}

void MpvPlayer::seek(std::int64_t milliseconds) {
  holdAs(Mode::Stopped);
  const std::int64_t target = std::clamp<std::int64_t>(milliseconds, 0, length_);
  if (ended_) {  // libmpv has closed the piece
    load(target);
    return;
  }
  const std::string place = seconds(target);
  std::array<const char*, 4> command{"seek", place.c_str(), "absolute+exact", nullptr};
  if (mpv_.command(handle_.get(), command.data()) >= 0) expectPosition(target);
}

void MpvPlayer::setSpeed(double factor) {
  mpv_.setProperty(handle_.get(), "speed", MPV_FORMAT_DOUBLE, &factor);
}

// libmpv cubes its volume to get the amplitude.
void MpvPlayer::setVolume(double amplitude) {
  double percent = 100 * std::cbrt(amplitude);
  mpv_.setProperty(handle_.get(), "volume", MPV_FORMAT_DOUBLE, &percent);
}

void MpvPlayer::setAudible(bool audible) {
  setFlag("mute", !audible);
}

bool MpvPlayer::unheard() {
  char* output = mpv_.getText(handle_.get(), "current-ao");
  const bool unheard = output != nullptr && std::string_view(output) == nowhere;
  mpv_.free(output);
  return unheard;
}

void MpvPlayer::awaitOutput() {
  const auto patienceEnds = std::chrono::steady_clock::now() + patience;
  while (!ended_ && std::chrono::steady_clock::now() < patienceEnds) {
    char* output = mpv_.getText(handle_.get(), "current-ao");
    if (output == nullptr) {
      handle(*mpv_.waitEvent(handle_.get(), 0.005));
      continue;
    }
    mpv_.free(output);
    return;
  }
}

void MpvPlayer::reopenOutput() {
  std::array<const char*, 2> command{"ao-reload", nullptr};
  mpv_.command(handle_.get(), command.data());
}

MpvPlayer::Mode MpvPlayer::mode() {
  handleEvents();
  return mode_;
}

std::int64_t MpvPlayer::position() {
  handleEvents();
  if (ended_) return length_;
  if (sought_ >= 0) return sought_;
  double reached = 0;
  mpv_.getProperty(handle_.get(), "time-pos", MPV_FORMAT_DOUBLE, &reached);
  // Some decoders play a little past the length that they announced.
  return std::clamp<std::int64_t>(std::llround(reached * 1000), 0, std::max<std::int64_t>(length_ - 1, 0));
}

}  // namespace devices
