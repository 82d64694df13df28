// Opening, playing and destroying announcements that were saved.
#pragma once

#include <string>

#include "context/context.h"

namespace announcements {

class StoredAnnouncements {
 public:
  explicit StoredAnnouncements(const context::Context& context);

  // Nothing opened: as the page is loaded.
  void makeReady();

 private:
  void ouvrir();
  bool lireAnnonce();  // false: it does not open
  void showOpenFailure(const std::string& path);
  void follow();
  void play();
  void pause();
  void stop();
  void replay();
  void destroy();
  std::string send(const std::string& command) { return context_.outside.media.send(command); }

  context::Context context_;
  forms::EnrUneAnnonce& page_;
  model::Playback& sound_;
};

}  // namespace announcements
