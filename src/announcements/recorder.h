// Recording the rider's voice and listening to the take.
#pragma once

#include <string>

#include "context/context.h"
#include "platform/clock.h"
#include "voice/voice.h"

namespace announcements {

class Recorder {
 public:
  Recorder(const context::Context& context, voice::Voice& voice);

  // No take, nothing running: as the page is loaded.
  void makeReady();

 private:
  void recordVoice();
  void recordOverMusic();
  void demarrerCapture();
  void watch();
  void enforceTimeLimit();
  void resetToIdle();
  void leave();
  // These wait. False: another take has begun meanwhile or the recorder was closed, so the caller stops.
  bool waitWithSameTake();
  bool stop();
  bool playBackOnce();
  void listen();
  void countListening();
  std::string send(const std::string& command) { return context_.outside.media.send(command); }

  context::Context context_;
  voice::Voice& voice_;
  forms::EnrUneAnnonce& page_;
  model::Take& shown_;
  int secondesEnregistrees_ = 0;  // since the last press of Command2
  int secondesEcoutees_ = 0;      // since listening began
  std::string ecouteApresArret_;  // "oui" until the first stop has played the take back
  platform::Instant heureDebut_{0};
  unsigned take_ = 0;  // changes with every new or discarded take
};

}  // namespace announcements
