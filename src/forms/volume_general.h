// The volume dialog: the machine's master volume and mute, watched even while it is hidden.
#pragma once

#include "platform/controls.h"
#include "platform/timer.h"

namespace forms {

struct VolumeGeneral : platform::Form {
  VolumeGeneral() : Form("VolumeGeneral", "      Volume Général") {}

  platform::ScrollBar VScroll1{*this, "VScroll1", {100, 0}, 0};  // %; large step 5
  platform::CheckBox Chk_Mute{*this, "Chk_Mute"};
  platform::Label Label1{*this, "Label1", "Mute"};
  platform::Label Lbl_Volume{*this, "Lbl_Volume", ""};
  platform::Image Image3{*this, "Image3", {}, "sound-on"};                   // the state of the sound
  platform::Image Image1{*this, "Image1", {.visible = false}, "sound-on"};   // where it comes from, sound on
  platform::Image Image4{*this, "Image4", {.visible = false}, "sound-off"};  // and sound off

  // What the machine offers.
  platform::Label Lbl_OS{*this, "Lbl_OS", ""};
  platform::Label Lbl_SoundCard0{*this, "Lbl_SoundCard0", "Nom du périph actif :"};
  platform::Label Lbl_SoundCard1{*this, "Lbl_SoundCard1", "Nombre de cartes : "};
  platform::TextBox Txt_CardName{*this, "Txt_CardName"};
  platform::Label Lbl_Class{*this, "Lbl_Class", ""};

  platform::Button MyButton7{*this,
                             "MyButton7",
                             "Sortir",
                             {.tip = "Cliquez pour Sortir si le Réglage du Volume Général vous convient..."}};
  platform::Button MyButton10{
      *this,
      "MyButton10",
      "Propriétés Audio",
      {.tip = "Cliquez ici pour Afficher les Propriétes Audio de votre Ordinateur..."}};

  // Rests where the machine tells of its changes.
  platform::Timer Tmr_Spy{*this, "Tmr_Spy", 200, true};  // follows the machine
  platform::Timer Timer5{*this, "Timer5", 100};          // without use
  platform::Timer Timer6{*this, "Timer6", 100};          // without use
};

}  // namespace forms
