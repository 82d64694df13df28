// Showing and hiding controls in groups.
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

// The countdown's number at rest is the length that is chosen for it.
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

}  // namespace runner
