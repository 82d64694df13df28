// The player. Its screen never shows: it is the engine of the background music, worked from outside by
// `Text1` and the timers. So the commands that keep a picture on top or copy it have no effect.
#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/paint_bar.h"
#include "platform/timer.h"

namespace forms {

struct LectMCI : platform::Form {
  LectMCI() : Form("LectMCI") {}

  platform::Event<int> resized;  // the window has this width, twips

  // What to play.
  platform::FileList File1{*this, "File1", "*.mp3"};  // the list to step through
  platform::TextBox Text1{*this, "Text1"};            // path of the piece; empty: none was ever asked for
  platform::Button Command1{*this, "Command1", "Changer de dossier"};

  // Transport.
  platform::Button Command8{*this, "Command8", "Lire"};                   // plays Text1
  platform::Button Command2{*this, "Command2", "STOP"};                   // stops and closes
  platform::Button Command3{*this, "Command3", "<<"};                     // previous in the list
  platform::Button Command4{*this, "Command4", ">>"};                     // next in the list
  platform::Button Command5{*this, "Command5", "||"};                     // pauses and resumes
  platform::Button Command9{*this, "Command9", "play"};                   // fires Timer7
  platform::Button Command10{*this, "Command10", "pause"};                // fires Timer8
  std::array<platform::Button, 3> CMspeed{{{*this, "CMspeed(0)", "1/2"},  // half the speed,
                                           {*this, "CMspeed(1)", "1"},    // the piece's own,
                                           {*this, "CMspeed(2)", "2"}}};  // twice
  platform::CheckBox Check1{*this, "Check1", "Son off"};

  // The picture.
  platform::CheckBox Check2{*this, "Check2", "On top"};
  platform::CheckBox Check3{*this, "Check3", "Resize"};
  platform::CheckBox Check4{*this, "Check4", "Proportion"};
  platform::Frame Picture1{*this, "Picture1"};                  // the film's box
  platform::Image AffBMP{*this, "AffBMP", {.visible = false}};  // still pictures
  platform::Button Command6{*this, "Command6", "Capture fichier"};
  platform::Button Command7{*this, "Command7", "Capture presse papier"};

  // Where the piece is, and how loud.
  platform::PaintBar PicProgress{*this, "PicProgress"};
  platform::PaintBar PicVolume{*this, "PicVolume"};
  platform::ScrollBar VScroll1{*this, "VScroll1", {100, 0}, 100};
  platform::Label Label1{*this, "Label1"};        // its length, or what is being loaded
  platform::Label Label2{*this, "Label2"};        // its position
  platform::Label Label3{*this, "Label3", "10"};  // the volume

  // Orders from outside: each but Timer1 and Timer9 ends itself and presses a button. Timer9 rests, and so
  // does Timer1 while nothing is loaded; the place in a piece moves by itself.
  platform::Timer Timer1{*this, "Timer1", 250, true};  // follows the position
  platform::Timer Timer2{*this, "Timer2", 1};          // Command8
  platform::Timer Timer3{*this, "Timer3", 1};          // Command2
  platform::Timer Timer4{*this, "Timer4", 1};          // Command5
  platform::Timer Timer5{*this, "Timer5", 1};          // Command3
  platform::Timer Timer6{*this, "Timer6", 1};          // Command4
  platform::Timer Timer7{*this, "Timer7", 1};          // resumes
  platform::Timer Timer8{*this, "Timer8", 1};          // pauses
  platform::Timer Timer9{*this, "Timer9", 10, true};   // carries out the ride's order to the music
};

}  // namespace forms
