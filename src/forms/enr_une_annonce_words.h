// What the state of the announcements' page and the music library means, in words.
#pragma once

#include "forms/enr_une_annonce.h"

namespace forms {

inline constexpr const char* readyToRecord = "Prêt pour Enregistrer une Annonce";
inline constexpr const char* noAnnouncementOpen = "Lire une Annonce Enregistrée";
inline constexpr const char* noMusicChosen = "Actuellement Aucune Ambiance Musicale Choisie";

// A take is being recorded.
[[nodiscard]] inline bool recordingTake(const EnrUneAnnonce& page) {
  return page.Timer3.enabled;
}

// The record button offers to record; otherwise it says that a take is being recorded.
[[nodiscard]] inline bool voiceOffered(const EnrUneAnnonce& page) {
  return page.Command2.caption == "Enregistrer la Voix";
}

inline void offerVoice(EnrUneAnnonce& page, bool offered) {
  page.Command2.caption = offered ? "Enregistrer la Voix" : "Enregistrement en Cours";
}

// The stop button offers to stop a take; otherwise it says that one was stopped.
[[nodiscard]] inline bool takeStopOffered(const EnrUneAnnonce& page) {
  return page.Command3.caption == "Stopper l'Enregistrement en Cours";
}

inline void offerTakeStop(EnrUneAnnonce& page, bool offered) {
  page.Command3.caption = offered ? "Stopper l'Enregistrement en Cours" : "Enregistrement Stoppé";
}

// The take is being listened to: the button offers to end that.
[[nodiscard]] inline bool listeningToTake(const EnrUneAnnonce& page) {
  return page.Command4.caption == "Arrêt Lecture de l'Annonce Enregistrée";
}

inline void showListening(EnrUneAnnonce& page, bool listening) {
  page.Command4.caption =
      listening ? "Arrêt Lecture de l'Annonce Enregistrée" : "Ecouter l'Annonce Enregistrée";
}

// A stored announcement is open: the page shows its name.
[[nodiscard]] inline bool announcementOpen(const EnrUneAnnonce& page) {
  return page.Label9.caption != noAnnouncementOpen;
}

// A piece of music is chosen: the page shows its name.
[[nodiscard]] inline bool musicChosen(const EnrUneAnnonce& library) {
  return library.Label6.caption != noMusicChosen;
}

// After the last ticked piece the first follows; the box is grey where only some are ticked.
[[nodiscard]] inline bool selectionRepeats(const EnrUneAnnonce& library) {
  return library.Check2.value != 0;
}

}  // namespace forms
