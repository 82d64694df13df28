// The open medium: the state that the player's parts share, and the commands to its device.
#pragma once

#include <cstdint>
#include <string>

#include "platform/media_commands.h"
#include "platform/observable.h"

namespace player {

class Medium {
 public:
  explicit Medium(platform::MediaCommands& media) : media_(media) {}

  std::string alias;
  platform::Variable<bool> chargé;  // something is open
  bool enPause = false;             // stopped by the pause button or by the ride
  bool glisse = false;              // the progress bar is being dragged
  int longueur = 0;                 // ms
  int largeurMedia = 0;             // the picture's own size
  int hauteurMedia = 0;
  std::string infoMedia;  // its code and size

  // Sends `verb`, the alias and the rest; returns the answer.
  std::string send(const std::string& verb, const std::string& rest = {}) {
    return sendWhole(verb + " " + alias + rest);
  }
  std::string sendWhole(const std::string& command) { return media_.send(command); }

 private:
  platform::MediaCommands& media_;
};

// "h:mm:ss.mmm", with as many digits of hours as there are.
[[nodiscard]] std::string formatTemps(std::int64_t milliseconds);

}  // namespace player
