// What the state of the editor means, in words: what its buttons add, what the badge over a cell says, and
// the controls that belong together.
#pragma once

#include <algorithm>
#include <array>

#include "forms/creer_cycle.h"
#include "forms/time_fields.h"

namespace forms {

// The list is a cycle of several sessions: the button offers to cancel the cycle.
[[nodiscard]] inline bool cycleMode(const CreerCycle& editor) {
  return editor.MyButton3.caption != "Créer un Cycle";
}

inline void showCycleMode(CreerCycle& editor, bool on) {
  editor.MyButton3.caption = on ? "Annuler ce Cycle" : "Créer un Cycle";
}

// The button adds whole sessions, not single sequences.
[[nodiscard]] inline bool addsSessions(const CreerCycle& editor) {
  return editor.MyButton4.caption == "Ajouter une Séance";
}

inline void offerToAdd(CreerCycle& editor, bool sessions) {
  editor.MyButton4.caption = sessions ? "Ajouter une Séance" : "Ajouter une Séquence";
}

inline constexpr platform::Colour refusalColour = platform::Colour::rgb(255, 255, 255);

// The badge refuses a change of its cell; in any other colour it gives a tip.
[[nodiscard]] inline bool badgeRefuses(const CreerCycle& editor) {
  return editor.Label4.colour == refusalColour;
}

// A box to edit a cell is open over the list.
[[nodiscard]] inline bool cellOpen(const CreerCycle& editor) {
  return editor.Combo1.visible || editor.Picture2.visible || editor.Combo13.visible;
}

// The boxes for hours, minutes and seconds of the row being edited.
[[nodiscard]] auto durationBoxes(auto& editor) {
  return std::array{&editor.Combo2, &editor.Combo3, &editor.Combo4};
}

// How a ride shows the heart-rate target: in beats, in percent, in both by turns.
[[nodiscard]] auto targetModes(auto& editor) {
  return std::array{&editor.Check1, &editor.Check2, &editor.Check3};
}

[[nodiscard]] inline bool noTargetMode(const CreerCycle& editor) {
  const auto modes = targetModes(editor);
  return std::all_of(modes.begin(), modes.end(), [](const CheckBox* box) { return box->value == 0; });
}

// The calculator's results still hold the texts of the design.
[[nodiscard]] inline bool resultsUntouched(const CreerCycle& editor) {
  return editor.Label50.caption == "Label50";
}

}  // namespace forms
