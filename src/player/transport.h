// Opens, plays, pauses and stops; steps through the list; carries out what comes by the timers.
#pragma once

#include <string>

#include "context/context.h"
#include "player/bars.h"
#include "player/medium.h"
#include "player/placement.h"

namespace player {

class Transport {
 public:
  Transport(const context::Context& context, Medium& medium, Bars& bars, Placement& placement);

 private:
  void attachButtons();
  void attachTimers();

  void ouvrir(const std::string& path);
  void identifier(const std::string& path);
  void montrerDuree();
  void montrerPosition(std::int64_t milliseconds);

  void lire();           // Command8
  void arreter();        // Command2
  void lireSelection();  // a double click in the list
  void precedent();      // Command3
  void suivant();        // Command4
  void reprendre();
  void suspendre();
  void appliquerSon();
  void appliquerVitesse(int index);
  void suivrePosition();  // Timer1
  void obeirALaSeance();  // Timer9
  void stopAndClose();

  const context::Context& context_;
  forms::LectMCI& player_;
  forms::EnrUneAnnonce& announcements_;
  Medium& medium_;
  Bars& bars_;
  Placement& placement_;
};

}  // namespace player
