// States of the main screen that several parts of the ride set: groups of controls shown, hidden or enabled,
// and the large message.
#pragma once

#include <initializer_list>

#include "forms/main_form.h"

namespace runner {

inline void show(std::initializer_list<platform::Control*> controls) {
  for (platform::Control* control : controls) control->visible = true;
}

inline void hide(std::initializer_list<platform::Control*> controls) {
  for (platform::Control* control : controls) control->visible = false;
}

// The picture that stands in for the chrono's digits, and the digits.
inline void showIdlePicture(forms::MainForm& main) {
  main.Image7.visible = true;
  hide({&main.Label4, &main.Label5, &main.Label6});
}

inline void showDigits(forms::MainForm& main) {
  main.Image7.visible = false;
  show({&main.Label4, &main.Label5, &main.Label6});
}

// The settings page covers the time boxes.
inline void hideTimeBoxesUnderSettings(forms::MainForm& main) {
  if (main.Picture1.visible) hide({&main.Combo1, &main.Combo2, &main.Combo3});
}

// The buttons that stop, suspend and cancel a ride.
inline void enableRideButtons(forms::MainForm& main, bool enabled) {
  for (auto* button : {&main.MyButton1, &main.MyButton4, &main.Command7}) button->enabled = enabled;
}

// For a start with neither a plan nor a time: tells the rider why, and shows the boxes to choose a time.
inline void showNothingToRide(forms::MainForm& main) {
  main.MyFrame2.visible = false;
  main.Label18.caption = "Rien à Parcourir : Composez ou Chargez une Séance d'Entraînement";
  show({&main.Label18, &main.Combo1, &main.Combo2, &main.Combo3});
  hideTimeBoxesUnderSettings(main);
}

// While the countdown does not run, its number is the chosen length.
inline void showCountdownLength(forms::MainForm& main) {
  if (!main.Timer2.enabled) main.Label9.caption = main.Combo5.text;
}

// A large message in the place of the heart-rate target.
inline void showMessage(forms::MainForm& main, const char* text) {
  main.Label44.visible = false;
  main.Label44.size = 18;
  main.Label44.top = 120;
  main.Label44.caption = text;
  main.Label44.visible = true;
}

inline constexpr const char* endMessage = "Séance d'Entraînement Terminée";

// The only message that stays after its ride.
inline bool showsEndMessage(const forms::MainForm& main) {
  return main.Label44.caption == endMessage;
}

inline void clearMessage(forms::MainForm& main) {
  main.Label44.visible = false;
  main.Label44.caption = "";
}

}  // namespace runner
