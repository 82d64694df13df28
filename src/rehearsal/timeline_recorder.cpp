#include "rehearsal/timeline_recorder.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "model/time_value.h"

namespace rehearsal {

void TimelineRecorder::begin(const model::SharedState& state) {
  start_ = clock_.now();
  state_ = &state;
}

void TimelineRecorder::look() {
  if (state_ == nullptr) return;
  const int row = state_->plan.sequenceCourante;
  if (row == row_ && (row == 0 || state_->seanceCourante == pass_)) return;
  endRow();
  row_ = row;
  pass_ = state_->seanceCourante;
  if (row == 0) return;
  const int seconds = model::parseSeconds(state_->plan.current().planDuree).value_or(0);
  timeline_.rows.push_back({pass_, row, now(), {}, {}, std::chrono::seconds(seconds)});
}

void TimelineRecorder::endRow() {
  if (row_ > 0) timeline_.rows.back().ends = now();
}

void TimelineRecorder::endHold() {
  if (held_) timeline_.holds.back().ends = now();
  held_ = false;
}

void TimelineRecorder::end() {
  look();
  endHold();
  if (!timeline_.rows.empty()) timeline_.end = timeline_.rows.back().ends;
  if (!timeline_.sounds.empty()) timeline_.end = std::max(timeline_.end, timeline_.sounds.back().ends);
  // The music plays on behind a ride.
  std::erase_if(timeline_.music, [this](const auto& command) { return command.at > timeline_.end; });
  std::erase_if(timeline_.holds, [this](const auto& hold) { return hold.begins > timeline_.end; });
  state_ = nullptr;
}

void TimelineRecorder::sound(int prompt, std::string name, const std::function<void()>& play) {
  look();
  const model::Moment begins = now();
  play();
  if (state_ == nullptr) return;
  timeline_.sounds.push_back({begins, now(), prompt, std::move(name)});
  if (row_ > 0 && state_->ecouleSequence == 0) timeline_.rows.back().spoken += now() - begins;
}

void TimelineRecorder::mediaCommand(const std::string& command) {
  if (state_ == nullptr || command.starts_with("status ") || command.starts_with("where ")) return;
  const bool opens = command.starts_with("open ");
  if (!opens && !open_) return;  // orders to a player that has nothing to play
  timeline_.music.push_back({now(), command});
  // The player holds by "stop" and goes on by a bare "play"; a piece that is closed is not held.
  const bool closes = command.starts_with("close ");
  if (command.starts_with("stop ") && !held_) {
    timeline_.holds.push_back({now(), now()});
    held_ = true;
  } else if (command.starts_with("play ") && held_) {
    endHold();
  } else if (closes && held_) {
    timeline_.holds.pop_back();
    held_ = false;
  }
  if (opens || closes) open_ = opens;
}

}  // namespace rehearsal
