// The print form: a copy of the editor's list, its look on paper, and the commands that send it there.
#pragma once

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/timer.h"

namespace forms {

struct ImprimerTQ1 : platform::Form {
  ImprimerTQ1() : Form("ImprimerTQ1", "Imprimer la Liste") {}

  platform::Frame MyFrame1{*this, "MyFrame1", ""};  // page count, then progress
  platform::Grid Grid{*this, "Grid", {.tip = "Vous pouvez Modifier les cellules"}};  // what goes on paper
  platform::ProgressBar ProgressBar1{*this, "ProgressBar1", {.visible = false}};
  platform::Option Option1{*this, "Option1", "Imprimer en Couleur"};
  platform::Label Label1{*this, "Label1", "Imprimer en Couleur"};  // beside Option1
  platform::Option Option2{*this, "Option2", "Imprimer en Monochrome"};

  platform::Button MyButton1{
      *this, "MyButton1", "Imprimer", {.tip = "Cliquez pour Imprimer , puis Sortir..."}};
  platform::Button MyButton2{
      *this, "MyButton2", "Annuler", {.tip = "Cliquez pour Annuler l'Impression puis Sortir..."}};
  platform::Button Command34{
      *this, "Command34", "Sortir", {.tip = "Cliquez ici pour Sortir et Fermer cette Fenêtre Info..."}};

  // Workers that code presses.
  platform::Button Command1{*this, "Command1", "Imprimer", {.visible = false}};
  platform::Button Command2{*this, "Command2", "Charger Liste", {.visible = false}};
  platform::Button Command3{*this, "Command3", "end", {.visible = false}};

  platform::Timer Timer1{*this, "Timer1", 10};  // once: loads the list
};

}  // namespace forms
