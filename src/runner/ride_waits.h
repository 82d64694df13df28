// The waits of a ride. Buttons and timers are served inside a wait, so a cancel, a stop, a new hand-over, a
// later boundary or the program's end can come before the work that waits is done. That work is then
// overtaken: it is abandoned at the wait, and neither speaks nor changes the screen any more.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/event_loop.h"
#include "voice/voice.h"

namespace runner {

class RideWaits {
 public:
  RideWaits(voice::Voice& voice, const platform::EventLoop& loop) : voice_(voice), loop_(loop) {}

  // Does the work. If one of its waits finds it overtaken, the rest is skipped.
  void run(const std::function<void()>& work);
  // All work that is under way is overtaken from now on.
  void overtake() { ++turn_; }

  // Only inside run(): pause() waits one second; hold() has the music stop where the settings ask for it,
  // which takes a second; release() lets it go on.
  void pause();
  void hold();
  void release();
  // Names the sound before and after the hold, because a pause meanwhile puts its own into `sonDemande`.
  void sayWithMusicHeld(const std::string& name);

  // Releases the music if a hold keeps it silent, so that it plays on whenever a cancel comes.
  void endHold();
  // Stops the music for good: endHold() does not release it.
  void silenceMusic();
  // From now on something else decides about the music: endHold() leaves it alone.
  void forgetHold() { held_ = false; }

 private:
  struct Overtaken {};
  void leaveIfOvertaken() const;

  voice::Voice& voice_;
  const platform::EventLoop& loop_;
  std::uint64_t turn_ = 0;
  std::uint64_t turnAtWork_ = 0;
  bool held_ = false;
};

}  // namespace runner
