// All seven forms of the program.
#pragma once

#include <array>

#include "forms/aide_tq.h"
#include "forms/creer_cycle.h"
#include "forms/enr_une_annonce.h"
#include "forms/imprimer_tq1.h"
#include "forms/lect_mci.h"
#include "forms/main_form.h"
#include "forms/volume_general.h"

namespace forms {

struct Screens {
  MainForm main;
  CreerCycle editor;
  EnrUneAnnonce announcements;
  LectMCI player;
  VolumeGeneral volume;
  ImprimerTQ1 print;
  AideTQ films;

  [[nodiscard]] std::array<platform::Form*, 7> all() {
    return {&main, &editor, &announcements, &player, &volume, &print, &films};
  }
};

}  // namespace forms
