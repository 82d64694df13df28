// The whole player behind the form `LectMCI`.
#pragma once

#include "player/bars.h"
#include "player/fourcc_table.h"
#include "player/medium.h"
#include "player/placement.h"
#include "player/transport.h"

namespace player {

class Player {
 public:
  explicit Player(const context::Context& context);

 private:
  void attachList();
  void choisirDossier();
  void suivreLargeur(int twips);

  const context::Context& context_;
  forms::LectMCI& player_;
  Medium medium_;
  Bars bars_;
  Placement placement_;
  Transport transport_;
  FourccTable fourcc_;
  int largeurForme_ = 0;
};

}  // namespace player
