// What the boxes of the sound settings mean, in words.
#pragma once

#include <algorithm>
#include <array>

#include "forms/main_form.h"

namespace forms {

// The rider wants to be spoken to.
[[nodiscard]] inline bool voiceOn(const MainForm& main) {
  return main.Check2.value == 1;
}

inline void turnVoice(MainForm& main, bool on) {
  main.Check2.value = on ? 1 : 0;
}

// What the voice says about a pass and a sequence; each can be switched on by itself.
[[nodiscard]] inline bool saysPass(const MainForm& main) {
  return main.Check3.value == 1;
}
[[nodiscard]] inline bool saysSequenceNumber(const MainForm& main) {
  return main.Check4.value == 1;
}
[[nodiscard]] inline bool saysCadence(const MainForm& main) {
  return main.Check5.value == 1;
}
[[nodiscard]] inline bool saysChainring(const MainForm& main) {
  return main.Check6.value == 1;
}
[[nodiscard]] inline bool saysGear(const MainForm& main) {
  return main.Check7.value == 1;
}
[[nodiscard]] inline bool saysHalfWay(const MainForm& main) {
  return main.Check8.value == 1;
}
[[nodiscard]] inline bool playsOwnAnnouncements(const MainForm& main) {
  return main.Check9.value == 1;
}
[[nodiscard]] inline bool saysKind(const MainForm& main) {
  return main.Check13.value == 1;
}

// The boxes for all of these.
[[nodiscard]] auto spokenParts(auto& main) {
  return std::array{&main.Check3, &main.Check4, &main.Check5, &main.Check6,
                    &main.Check7, &main.Check8, &main.Check9, &main.Check13};
}

[[nodiscard]] inline bool saysNothing(const MainForm& main) {
  const auto parts = spokenParts(main);
  return std::all_of(parts.begin(), parts.end(), [](const CheckBox* box) { return box->value == 0; });
}

// The music of a ride holds while the voice speaks.
[[nodiscard]] inline bool musicYields(const MainForm& main) {
  return main.Check10.value == 1;
}

inline void letMusicYield(MainForm& main) {
  main.Check10.value = 1;
}

// A ride has music, whether it yields or plays on.
[[nodiscard]] inline bool musicInRide(const MainForm& main) {
  return musicYields(main) || main.Check11.value == 1;
}

// Another length of the start countdown may be kept.
[[nodiscard]] inline bool keepsCountdownLength(const MainForm& main) {
  return main.Check12.value == 1;
}

// Check1 to Check13, in the order of the file that keeps them.
[[nodiscard]] inline std::array<CheckBox*, 13> settingsBoxes(MainForm& main) {
  return {&main.Check1, &main.Check2, &main.Check3,  &main.Check4,  &main.Check5,  &main.Check6, &main.Check7,
          &main.Check8, &main.Check9, &main.Check10, &main.Check11, &main.Check12, &main.Check13};
}

}  // namespace forms
