// How loud the rider hears the program: the bar, the balance, and the fades.
#pragma once

#include "context/context.h"

namespace announcements {

inline constexpr int usualListeningLevel = 7;

class ListeningLevel {
 public:
  explicit ListeningLevel(const context::Context& context);

  void makeReady();

 private:
  void apply();
  void restUntilMoved();
  void stopFades();
  void fadeOut();
  void fadeIn();
  void fadeStep(platform::Timer& timer, int step, int last);

  forms::EnrUneAnnonce& page_;
  platform::OutputLevel& output_;
};

}  // namespace announcements
