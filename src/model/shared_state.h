// What the subsystems share beside the controls: the plan, the state of a ride, the sound slot, the order to
// the music. Everything belongs to the event loop's thread. Timers rest on what is a Variable.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/heart_zone.h"
#include "model/playback.h"
#include "model/run_plan.h"
#include "model/take.h"
#include "model/time_value.h"
#include "platform/clock.h"
#include "platform/observable.h"

namespace model {

struct SharedState {
  // The plan and its companions.
  RunPlan plan;
  int nbSequences = 0;        // rows kept in the plan; 0: nothing is programmed
  int nbSeances = 0;          // passes through the plan
  std::string seanceTitre;    // the session's title
  TimeValue dureeTotale = 0;  // time left of the whole run
  std::string dureeChrono;    // length of the start countdown, whole seconds as text

  // The ride.
  int seanceCourante = 0;                       // number of the pass being ridden
  platform::Variable<TimeValue> dureeSequence;  // 0 stops the chrono at its next tick
  TimeValue pasChrono = 0;                      // one second, set at start-up
  TimeValue ecouleSequence = 0;                 // ridden of the present sequence
  TimeValue restantSequence = 0;                // left of the present sequence, whole seconds
  std::string moitieSequence;                   // half of dureeSequence, "hh:nn:ss"
  std::string etatFin;                          // "terminer" once a run has ended with the voice off
  int modeAffichageFC = 1;       // how the target is shown: 1 beats, 2 percentage, 3 both in turn
  int alternanceFC = 0;          // in mode 3, which of the two comes next: 1 or 2
  std::string ecranVeilleActif;  // "oui" if the screen saver was active at the last check
  bool pauseDue = false;         // the machine was suspended in this ride, which is not paused yet

  // The voice: the sound to be played, first as a name, then as its number; and the sound names of the row
  // that is announced.
  std::variant<std::string, int> sonDemande;
  std::string sonSeance;
  std::string sonNumSequence;
  std::string sonSequence;
  std::string sonCadence;
  std::string sonBraquet;
  std::string sonPlateau;

  // The order to the music player: "oui" to go on, "non" to hold, empty when there is none.
  platform::Variable<std::string> musiqueSuit;

  // By how much what is said before each ridden row of the list is longer than the row; 0: it is not.
  std::vector<platform::Instant> tooShort;

  // The music's own state.
  std::string selectionEnCours;  // "oui" while a selection drives the music, else empty
  std::string dureeMusique;      // length of the current piece, as the player shows it

  // What the screens tell in words, as numbers: for what draws it.
  Take take;
  Playback announcement;               // the stored one that is open
  platform::Variable<Playback> music;  // the current piece
  // As the calculator shows them: safety, light, light to moderate, moderate, strong.
  std::array<HeartZone, 5> heartZones;

  // The program's folders, each ending in a separator.
  std::string dossierProgramme;
  std::string dossierSeances;
  std::string dossierAnnonces;
};

// The value of a shared variable as text: texts as they stand, time values as "hh:nn:ss"; none for an
// unknown name.
[[nodiscard]] std::optional<std::string> variableText(const SharedState& state, std::string_view name);
[[nodiscard]] std::vector<std::string> variableNames();

}  // namespace model
