// What stands in the forms, as a ride that could begin now.
#pragma once

#include "forms/enr_une_annonce_words.h"
#include "forms/screens.h"
#include "forms/sound_settings_words.h"
#include "model/ride_order.h"

namespace forms {

// The boxes as they are ticked, saved or not.
[[nodiscard]] inline model::Settings rideSettings(MainForm& main) {
  model::Settings settings;
  const auto boxes = settingsBoxes(main);
  for (std::size_t i = 0; i < boxes.size(); ++i) settings.boxes.at(i) = boxes.at(i)->value;
  settings.countdown = main.Combo5.text;
  return settings;
}

[[nodiscard]] inline model::RideMusic rideMusic(const Screens& screens) {
  const EnrUneAnnonce& library = screens.announcements;
  model::RideMusic music{{}, selectionRepeats(library), screens.player.Text1.text};
  for (int row = 1; row <= library.ListView1.rowCount(); ++row) {
    if (library.ListView1.checked(row)) music.ticked.push_back(library.ListView1.text(row, 1));
  }
  return music;
}

// The composed list, with these. Throws platform::Fault where the list has no total.
[[nodiscard]] inline model::WholeRide wholeRide(Screens& screens) {
  return {model::rideOrder(screens.editor.ListView1), rideSettings(screens.main), rideMusic(screens)};
}

}  // namespace forms
