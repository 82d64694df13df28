// The waits of a ride, and the one way in which they end early: what was at work when a cancel, a stop, a new
// hand-over, a later boundary or the end of the program came inside one of them has nothing more to say.
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

  // Does the work. Where one of its waits finds it overtaken, the rest of it is left undone.
  void run(const std::function<void()>& work);
  // Whatever is at work now is overtaken.
  void overtake() { ++turn_; }

  // The waits, for a work that is run: one second, and holding the music where the settings ask for it.
  void pause();
  void hold();
  void release();
  // Named before and after: who pauses during the hold has used the one slot of the sounds.
  void sayWithMusicHeld(const std::string& name);

  // Music that only a hold keeps silent plays on, so that a cancel leaves it alike at any moment.
  void endHold();
  // Holds the music for good: no cancel gives it back.
  void silenceMusic();
  // Somebody else has taken the music in hand.
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
