#include "devices/mpv_player.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace devices {
namespace {

using namespace std::chrono_literals;

constexpr auto openingPatience = 500ms;
constexpr auto outputPatience = 300ms;
constexpr auto answerPatience = 150ms;
constexpr std::uint64_t anyOrder = 0;
constexpr std::uint64_t seekOrder = 1;
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

struct Asked {
  const char* property;
  mpv_format format;
};
constexpr std::array<Asked, 3> questions{{
    {"duration", MPV_FORMAT_DOUBLE},
    {"time-pos", MPV_FORMAT_DOUBLE},
    {"current-ao", MPV_FORMAT_STRING},
}};

std::string seconds(std::int64_t milliseconds) {
  const std::string rest = std::to_string(milliseconds % 1000);
  return std::to_string(milliseconds / 1000) + "." + std::string(3 - rest.size(), '0') + rest;
}

}  // namespace

MpvPlayer::MpvPlayer(const MpvFunctions& mpv, MpvEnds& ends, std::string address)
    : mpv_(mpv), address_(std::move(address)), handle_(newHandle(mpv), End{&mpv, &ends}) {
  if (!handle_ || !load(0)) return;
  length_ = std::llround(std::max(ask(Length).number, 0.0) * 1000);
  opened_ = !owesAnswer();
}

// Waits until the piece is ready at `from`, in ms. False if it cannot be read.
bool MpvPlayer::load(std::int64_t from) {
  const std::string place = seconds(from);
  const char* start = place.c_str();
  mpv_.setProperty(handle_.get(), anyOrder, "start", MPV_FORMAT_STRING, &start);
  loaded_ = ended_ = false;
  expectPosition(from);
  order(anyOrder, {"loadfile", address_.c_str()});
  await(openingPatience, [this] { return loaded_ || ended_; });
  return loaded_;
}

void MpvPlayer::order(std::uint64_t number, std::initializer_list<const char*> words) {
  std::array<const char*, 4> command{};
  std::copy(words.begin(), words.end(), command.begin());
  if (mpv_.command(handle_.get(), number, command.data()) >= 0 && number == seekOrder) ++seeking_;
}

bool MpvPlayer::owesAnswer() const {
  return std::any_of(answers_.begin(), answers_.end(), [](const Answer& answer) { return answer.awaited; });
}

const MpvPlayer::Answer& MpvPlayer::ask(Question question) {
  handleEvents();
  Answer& answer = answers_.at(question);
  if (owesAnswer()) return answer;
  const Asked& asked = questions.at(question);
  answer.awaited = mpv_.askProperty(handle_.get(), question, asked.property, asked.format) >= 0;
  await(answerPatience, [&] { return !answer.awaited; });
  return answer;
}

void MpvPlayer::await(std::chrono::milliseconds patience, const std::function<bool()>& done) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!done()) {
    const std::chrono::duration<double> left = end - std::chrono::steady_clock::now();
    if (left.count() <= 0) return;
    handle(*mpv_.waitEvent(handle_.get(), left.count()));
  }
}

void MpvPlayer::handle(const mpv_event& event) {
  switch (event.event_id) {
    case MPV_EVENT_FILE_LOADED:
      loaded_ = true;
      break;
    case MPV_EVENT_PLAYBACK_RESTART:
      arrived_ = seeking_ == 0;
      break;
    case MPV_EVENT_COMMAND_REPLY:
      if (event.reply_userdata != seekOrder) break;
      --seeking_;
      if (event.error < 0 && seeking_ == 0) sought_ = -1;
      break;
    case MPV_EVENT_GET_PROPERTY_REPLY:
      keep(event);
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

void MpvPlayer::keep(const mpv_event& reply) {
  Answer& answer = answers_.at(reply.reply_userdata);
  answer = {};
  const auto* property = static_cast<const mpv_event_property*>(reply.data);
  if (reply.error < 0 || property == nullptr) return;
  if (property->format == MPV_FORMAT_DOUBLE) answer.number = *static_cast<const double*>(property->data);
  if (property->format == MPV_FORMAT_STRING) answer.text = *static_cast<const char* const*>(property->data);
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
  mpv_.setProperty(handle_.get(), anyOrder, property, MPV_FORMAT_FLAG, &value);
}

void MpvPlayer::setNumber(const char* property, double number) {
  mpv_.setProperty(handle_.get(), anyOrder, property, MPV_FORMAT_DOUBLE, &number);
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
  order(seekOrder, {"seek", seconds(target).c_str(), "absolute+exact"});
  expectPosition(target);
}

void MpvPlayer::setSpeed(double factor) {
  setNumber("speed", factor);
}

// libmpv cubes its volume to get the amplitude.
void MpvPlayer::setVolume(double amplitude) {
  setNumber("volume", 100 * std::cbrt(amplitude));
}

void MpvPlayer::setAudible(bool audible) {
  setFlag("mute", !audible);
}

bool MpvPlayer::unheard() {
  return ask(Output).text == nowhere;
}

void MpvPlayer::awaitOutput() {
  const auto end = std::chrono::steady_clock::now() + outputPatience;
  while (ask(Output).text.empty() && !owesAnswer() && !ended_ && std::chrono::steady_clock::now() < end) {
    handle(*mpv_.waitEvent(handle_.get(), 0.005));
  }
}

void MpvPlayer::reopenOutput() {
  order(anyOrder, {"ao-reload"});
}

MpvPlayer::Mode MpvPlayer::mode() {
  handleEvents();
  return mode_;
}

std::int64_t MpvPlayer::position() {
  handleEvents();
  if (ended_) return length_;
  if (sought_ >= 0) return sought_;
  const std::int64_t reached = std::llround(ask(Place).number * 1000);
  if (ended_) return length_;
  // Some decoders play a little past the length that they announced.
  return std::clamp<std::int64_t>(reached, 0, std::max<std::int64_t>(length_ - 1, 0));
}

}  // namespace devices
