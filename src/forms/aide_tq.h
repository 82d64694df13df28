// The page of help films: a button for each.
#pragma once

#include "platform/controls.h"

namespace forms {

struct AideTQ : platform::Form {
  AideTQ() : Form("AideTQ", "Aide en Vidéo pour Ventoria...") {}

  platform::Frame MyFrame3{*this, "MyFrame3", ""};  // the whole page
  platform::Button MyButton1{*this, "MyButton1", "Création d'une Séance", {.in = &MyFrame3}};
  platform::Button MyButton2{*this, "MyButton2", "Ajouter et Liste Séances", {.in = &MyFrame3}};
  platform::Button MyButton3{*this, "MyButton3", "Enregistrer Une Séance", {.in = &MyFrame3}};
  platform::Button MyButton4{*this, "MyButton4", "Supprimer Une Ligne", {.in = &MyFrame3}};
  platform::Button MyButton5{*this, "MyButton5", "Compte à Rebours", {.in = &MyFrame3}};
  platform::Button MyButton6{*this, "MyButton6", "Affichage Infos et Vidéos", {.in = &MyFrame3}};
  platform::Button MyButton7{*this, "MyButton7", "Ambiance Musicale", {.in = &MyFrame3}};
  platform::Button MyButton8{*this, "MyButton8", "Enregistrer Une Annonce Vocale", {.in = &MyFrame3}};
  platform::Button MyButton9{
      *this, "MyButton9", "Fermer cette Page", {.in = &MyFrame3, .tip = "Cliquez pour Fermer cette Aide..."}};
};

}  // namespace forms
