// What the state of the main screen means, in words: whether a ride is under way, its clocks, its buttons,
// and the controls that belong together. A predicate takes the form as it is; a group gives its controls.
#pragma once

#include <array>
#include <string>

#include "forms/main_form.h"
#include "forms/show_hide.h"
#include "forms/time_fields.h"
#include "model/numbers.h"
#include "model/shared_state.h"

namespace forms {

// The start countdown is running.
[[nodiscard]] inline bool countdownRuns(const MainForm& main) {
  return main.Timer2.enabled;
}

// The chrono is running, on a sequence or on a time chosen without a plan. It stands still in a pause, and
// between two sequences.
[[nodiscard]] inline bool chronoRuns(const MainForm& main) {
  return main.Timer1.enabled;
}

// The ride is paused: the pause button offers to resume it.
[[nodiscard]] inline bool ridePaused(const MainForm& main) {
  return main.Command7.caption == "REPRENDRE";
}

inline void offerPause(MainForm& main) {
  main.Command7.caption = "Pause";
  main.Label43.caption = "";  // why the ride was paused
}

inline void offerResume(MainForm& main) {
  main.Command7.caption = "REPRENDRE";
}

// Says on the ride's panel why a pause begins that the rider has not asked for.
inline void tellOfSuspend(MainForm& main) {
  main.Label43.caption = "L'ordinateur s'est mis en veille : la séance est en pause.";
  main.Picture6.visible = true;
}

// The countdown or the chrono runs, or would if the rider resumed. False between two sequences, and after a
// fault has ended the ride.
[[nodiscard]] inline bool rideGoesOn(const MainForm& main) {
  return countdownRuns(main) || chronoRuns(main) || ridePaused(main);
}

// From the countdown to the end or the cancel, pauses and boundaries included.
[[nodiscard]] inline bool rideUnderWay(const MainForm& main, const model::SharedState& state) {
  return rideGoesOn(main) || state.plan.started();
}

// The start button offers to start; once pressed, it offers to stop.
[[nodiscard]] inline bool startOffered(const MainForm& main) {
  return main.MyButton1.caption == "Start";
}

inline void offerStart(MainForm& main) {
  main.MyButton1.caption = "Start";
}

inline void offerStop(MainForm& main) {
  main.MyButton1.caption = "Stop";
}

// The buttons that stop, suspend and cancel a ride.
inline void enableRideButtons(MainForm& main, bool enabled) {
  for (auto* button : {&main.MyButton1, &main.MyButton4, &main.Command7}) button->enabled = enabled;
}

// Hours, minutes and seconds that are left, as the large digits show them.
[[nodiscard]] auto chronoDigits(auto& main) {
  return std::array{&main.Label4, &main.Label5, &main.Label6};
}

inline void showInDigits(MainForm& main, const std::array<std::string, 3>& parts) {
  const auto digits = chronoDigits(main);
  for (std::size_t i = 0; i < parts.size(); ++i) digits.at(i)->caption = parts.at(i);
}

// "hh:nn:ss"
[[nodiscard]] inline std::string timeInDigits(const MainForm& main) {
  return main.Label4.caption.get() + ":" + main.Label5.caption.get() + ":" + main.Label6.caption.get();
}

// The picture that stands in for the chrono's digits, and the digits.
inline void showIdlePicture(MainForm& main) {
  main.Image7.visible = true;
  hide(chronoDigits(main));
}

inline void showDigits(MainForm& main) {
  main.Image7.visible = false;
  show(chronoDigits(main));
}

// The boxes for hours, minutes and seconds: here the rider chooses a time where nothing is programmed.
[[nodiscard]] auto timeBoxes(auto& main) {
  return std::array{&main.Combo1, &main.Combo2, &main.Combo3};
}

[[nodiscard]] inline bool timeBoxesShown(const MainForm& main) {
  return main.Combo1.visible || main.Combo2.visible || main.Combo3.visible;
}

inline const std::array<std::string, 3> noTime{"00", "00", "00"};

// The settings page covers the time boxes.
inline void hideTimeBoxesUnderSettings(MainForm& main) {
  if (main.Picture1.visible) hide(timeBoxes(main));
}

// The labels about the sequence being ridden: its kind and figures, the counts, and their headings.
[[nodiscard]] inline std::array<platform::Control*, 11> rideFields(MainForm& main) {
  return {&main.Label1,  &main.Label2,  &main.Label3,  &main.Label10, &main.Label11, &main.Label15,
          &main.Label16, &main.Label17, &main.Label20, &main.Label28, &main.Label29};
}

// Of these the texts of the sequence itself, and the remark.
[[nodiscard]] inline std::array<Label*, 5> sequenceTexts(MainForm& main) {
  return {&main.Label10, &main.Label11, &main.Label12, &main.Label15, &main.Label20};
}

// What the screen shows before and after a ride.
[[nodiscard]] inline std::array<platform::Control*, 2> restFields(MainForm& main) {
  return {&main.Label18, &main.Image4};
}

inline void showRideFields(MainForm& main) {
  show(rideFields(main));
  hide({&main.Label12, &main.Label39, &main.Image2});
  hide(restFields(main));
}

inline void hideRideFields(MainForm& main) {
  main.EndTime.caption = "";
  hide(rideFields(main));
  hide({&main.Label12, &main.Label39, &main.Image2});
  hide(timeBoxes(main));
  show(restFields(main));
}

// Chainring and gear, in two texts or in one.
[[nodiscard]] inline bool gearShown(const MainForm& main) {
  return main.Label15.visible || main.Label20.visible || main.Label39.visible;
}

// Shows the row being ridden and the number of rows: "3/12".
inline void showPlace(MainForm& main, const model::SharedState& state) {
  main.Label16.caption =
      std::to_string(state.plan.sequenceCourante) + "/" + std::to_string(state.nbSequences);
}

// For a start with neither a plan nor a time: tells the rider why, and shows the boxes to choose a time.
inline void showNothingToRide(MainForm& main) {
  main.MyFrame2.visible = false;
  main.Label18.caption = "Rien à Parcourir : Composez ou Chargez une Séance d'Entraînement";
  main.Label18.visible = true;
  show(timeBoxes(main));
  hideTimeBoxesUnderSettings(main);
}

inline constexpr int usualCountdown = 16;  // s

// The chosen length of the start countdown, s; 0 where the text is no number.
[[nodiscard]] inline int countdownLength(const MainForm& main) {
  return model::lenientInteger(main.Combo5.text.get());
}

[[nodiscard]] inline int countdownLeft(const MainForm& main) {
  return model::lenientInteger(main.Label9.caption.get());
}

// While the countdown does not run, its number is the chosen length.
inline void showCountdownLength(MainForm& main) {
  if (!countdownRuns(main)) main.Label9.caption = main.Combo5.text;
}

// The title says more than the product's name, which stands beside it.
[[nodiscard]] inline bool sessionTitled(const MainForm& main) {
  return main.MyFrame1.caption != main.Label30.caption;
}

// The machine's volume has been read, and the screen shows advice about it.
[[nodiscard]] inline bool volumeKnown(const MainForm& main) {
  return !main.Label36.caption.get().empty();
}

}  // namespace forms
