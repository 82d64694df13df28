// The large label of the main screen: the heart-rate target, or a message in its place.
#pragma once

#include "forms/main_form.h"

namespace forms {

inline constexpr int messageSize = 18;  // points
inline constexpr int targetSize = 80;

inline constexpr const char* endMessage = "Séance d'Entraînement Terminée";

inline void showMessage(MainForm& main, const char* text) {
  main.Label44.visible = false;
  main.Label44.size = messageSize;
  main.Label44.top = 120;
  main.Label44.caption = text;
  main.Label44.visible = true;
}

inline void clearMessage(MainForm& main) {
  main.Label44.visible = false;
  main.Label44.caption = "";
}

// The chrono's next tick writes the target.
inline void makeRoomForTarget(MainForm& main) {
  main.Label44.size = targetSize;
  main.Label44.top = -180;
  main.Label44.visible = true;
}

// Words stand there, no target.
[[nodiscard]] inline bool showsMessage(const MainForm& main) {
  return main.Label44.visible && main.Label44.size == messageSize;
}

// The only message that stays after its ride.
[[nodiscard]] inline bool showsEndMessage(const MainForm& main) {
  return main.Label44.caption == endMessage;
}

}  // namespace forms
