// The session editor: the grid, its cell editors and commands, the heart-rate calculator.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/menu.h"
#include "platform/timer.h"

namespace forms {

using platform::Button;
using platform::CheckBox;
using platform::ComboBox;
using platform::FileList;
using platform::Frame;
using platform::Grid;
using platform::Image;
using platform::Label;
using platform::MenuItem;
using platform::Timer;

struct CreerCycle : platform::Form {
  CreerCycle() : Form("CreerCycle", "Ventoria") {}

  // A session file that comes from outside: opened in the file manager.
  platform::Event<std::string> sessionHandedIn;

  // Containers.
  Frame MyFrame2{
      *this, "MyFrame2", "", {.tip = "Double-Cliquez ICI pour Agrandir la Liste en Plein Ecran..."}};
  Frame Picture1{*this, "Picture1", "", {.visible = false}};  // the refusal badge over a cell
  Frame Picture2{*this, "Picture2", "", {.visible = false}};  // the duration panel over a cell
  Frame Picture3{*this, "Picture3", ""};                      // the info panel
  Frame Picture5{*this, "Picture5", "", {.visible = false}};  // a panel that can be moved
  Frame Picture8{*this,
                 "Picture8",
                 "Paramétrages ou Calculs Intéractifs pour les Fréquences Cardiaques",
                 {.visible = false}};  // the heart-rate calculator

  // What an earlier run left without saving it, and the way to take it up.
  Frame DraftBar{*this, "DraftBar", "", {.visible = false}};
  Label DraftText{*this, "DraftText", "", {.in = &DraftBar}};
  Button DraftResume{*this, "DraftResume", "Reprendre", {.in = &DraftBar}};
  Button DraftForget{*this, "DraftForget", "Oublier", {.in = &DraftBar}};

  Label RealDuration{*this, "RealDuration", ""};  // how long the list really takes, its announcements told

  // The grid and what lies over it.
  Grid ListView1{*this, "ListView1"};                          // the session being composed
  ComboBox Combo1{*this, "Combo1", "", {.visible = false}};    // the cell editor
  ComboBox Combo2{*this, "Combo2", "00", {.in = &Picture2}};   // hours of a duration
  ComboBox Combo3{*this, "Combo3", "00", {.in = &Picture2}};   // minutes
  ComboBox Combo4{*this, "Combo4", "00", {.in = &Picture2}};   // seconds
  ComboBox Combo13{*this, "Combo13", "", {.visible = false}};  // heart-rate method, over the last column
  Label Label4{*this, "Label4", "Cette Zone n'est pas Modifiable", {.in = &Picture1}};
  Image Navette{*this, "Navette", {.visible = false}};           // marks the cell under the pointer
  FileList File1{*this, "File1", "*.wav*", {.visible = false}};  // the announcements
  FileList File2{*this, "File2", "*.tq2", {.visible = false}};   // the saved sessions
  FileList File3{*this, "File3", "*.avi", {.visible = false}};   // the films
  ComboBox Combo6{*this, "Combo6", ""};                          // the films that are there

  // What is being done, and the row in hand.
  Label Label8{*this, "Label8", ""};                              // name of the list
  Label Label9{*this, "Label9", ""};                              // title of what is being done
  Label Label7{*this, "Label7", "00:00:00", {.visible = false}};  // duration of the row in hand
  Label Label10{*this, "Label10", "", {.visible = false}};        // read-outs of the row in hand: kind,
  Label Label11{*this, "Label11", "", {.visible = false}};        // cadence,
  Label Label12{*this, "Label12", "", {.visible = false}};        // chainring,
  Label Label15{*this, "Label15", "", {.visible = false}};        // gear,
  Label Label16{*this, "Label16", "", {.visible = false}};        // repeat switch,
  Label Label17{*this, "Label17", "", {.visible = false}};        // repeat count,
  Label Label18{*this, "Label18", "", {.visible = false}};        // duration,
  Label Label32{*this, "Label32", "", {.visible = false}};        // heart-rate target
  Label Label29{*this, "Label29", "", {.visible = false}};        // text of the cell under the pointer
  Label Label23{*this, "Label23", "", {.in = &Picture3}};         // the help text
  Label Label24{*this, "Label24", "", {.in = &Picture3}};         // the info panel's words at rest
  Label Label25{*this, "Label25", "Infos", {.in = &Picture3}};    // its title, a handle to move it by

  // Commands.
  Button MyButton1{*this, "MyButton1", "Ajouter une Séquence"};
  Button MyButton2{*this, "MyButton2", "Créer une Séance"};
  Button MyButton3{*this, "MyButton3", "Créer un Cycle"};  // its caption is the cycle mode
  Button MyButton4{*this, "MyButton4", "Ajouter une Séance"};
  Button MyButton5{*this, "MyButton5", "Start"};  // hands the list over to the ride
  Button MyButton6{*this, "MyButton6", "Page Principale"};
  Button MyButton7{
      *this, "MyButton7", "Plein Ecran", {.tip = "Double-Cliquez ici pour Agrandir la Zone de Liste..."}};
  Button MyButton9{*this, "MyButton9", ""};
  Button MyButton11{*this, "MyButton11", "", {.visible = false}};  // how many rows are not finished
  Button Command1{*this, "Command1", "", {.visible = false}};      // ends the editing of a cell
  Button Command4{*this, "Command4", "Vider la Liste"};
  Button Command5{*this, "Command5", "Liste des Séances"};
  Button Command6{*this, "Command6", "Enregistrer la Liste"};
  Button Command35{*this,
                   "Command35",
                   "Imprimer la Liste",
                   {.tip = "Cliquez ici pour Imprimer la Liste Actuellement Affichée..."}};

  // Buttons over the columns.
  Button MyButton14{*this, "MyButton14", "Nom des Séances"};
  Button MyButton15{*this, "MyButton15", "Séquences"};
  Button MyButton16{*this, "MyButton16", "Cadences"};
  Button MyButton17{*this, "MyButton17", "plateau"};
  Button MyButton18{*this, "MyButton18", "Braquet"};
  Button MyButton19{*this, "MyButton19", "Répétée"};
  Button MyButton20{*this, "MyButton20", "* Fois"};
  Button MyButton21{*this, "MyButton21", "la Durée"};
  Button MyButton22{*this, "MyButton22", "Annonce Vocale"};
  Button MyButton23{*this, "MyButton23", "Supprimer une Ligne"};
  Button MyButton25{*this, "MyButton25", "Fréquence Cardiaque", {.tip = "La Fréquence Cardiaque..."}};

  // Help.
  Image Image1{*this, "Image1"};
  Image Image2{*this, "Image2"};  // the state of the sound
  Image Image6{*this, "Image6"};
  Image Image7{*this, "Image7", {.tip = "Cliquez pour Afficher l'Aide en Vidéo..."}};
  Label Label20{*this, "Label20", "Aide en Vidéo"};

  // The heart-rate calculator: inputs,
  ComboBox Combo7{*this, "Combo7", " ", {.in = &Picture8}};                      // age
  ComboBox Combo8{*this, "Combo8", "", {.in = &Picture8}};                       // method
  ComboBox Combo9{*this, "Combo9", "100", {.in = &Picture8, .visible = false}};  // %, always 100
  ComboBox Combo10{*this, "Combo10", " ", {.in = &Picture8}};                    // sex
  ComboBox Combo11{*this, "Combo11", " ", {.in = &Picture8}};                    // FCMax, bpm
  ComboBox Combo12{*this, "Combo12", " ", {.in = &Picture8}};                    // FCRepos, bpm
  Label Label58{*this, "Label58", "%age", {.in = &Picture8, .visible = false}};
  Label Label62{*this, "Label62", "L' Age sert Uniquement pour les 4 Premières Méthodes", {.in = &Picture8}};
  // results,
  Label Label49{
      *this, "Label49", "Label49", {.in = &Picture8, .visible = false}};  // recovery, never computed
  Label Label50{*this, "Label50", "Label50", {.in = &Picture8}};          // safety band
  Label Label51{*this, "Label51", "Label51", {.in = &Picture8, .visible = false}};  // mean, never computed
  Label Label52{*this, "Label52", "Label52", {.in = &Picture8}};                    // light
  Label Label53{*this, "Label53", "Label53", {.in = &Picture8}};                    // light to moderate
  Label Label54{*this, "Label54", "Label54", {.in = &Picture8}};                    // moderate
  Label Label55{*this, "Label55", "Label55", {.in = &Picture8}};                    // strong
  Label Label56{*this, "Label56", "Label56", {.in = &Picture8}};                    // reserve
  Label Label57{*this, "Label57", "Label57", {.in = &Picture8}};                    // work rate
  // how a ride shows the target,
  CheckBox Check1{*this,
                  "Check1",
                  "Afficher ma Fréquence Cardiaque Seulement en (Battements/Minutes)",
                  {.in = &Picture8}};
  CheckBox Check2{
      *this, "Check2", "Afficher ma Fréquence Cardiaque Seulement en (%) Pourcentage", {.in = &Picture8}};
  CheckBox Check3{*this, "Check3", "Afficher les (2 Modes) d'Affichages Alternativement", {.in = &Picture8}};
  // commands,
  Button MyButton38{
      *this,
      "MyButton38",
      "Afficher les Résultats",
      {.in = &Picture8,
       .tip = "Cliquez pour Afficher les Fréquences Cardiaques en Fonction de vos Paramètres..."}};
  Button MyButton40{
      *this, "MyButton40", "Enregistrer Mes Nouveaux Paramètres Persos", {.in = &Picture8, .visible = false}};
  Button MyButton41{
      *this,
      "MyButton41",
      "Voir Mes Paramètres Persos",
      {.in = &Picture8,
       .tip = "Cliquez ICI pour Régler avec mes Derniers Paramètres Personnels Enregistrés..."}};
  Button Command2{*this,
                  "Command2",
                  "Fermer Infos",
                  {.in = &Picture8, .tip = "Cliquez ici pour Sortir et Fermer ce Module..."}};
  // and help: one round button beside each line.
  Image Image10{*this, "Image10", {.in = &Picture8}};                  // the panel's background
  Image Image11{*this, "Image11", {.in = &Picture8}};                  // stands where no help text is shown
  Image Shape2{*this, "Shape2", {.in = &Picture8, .visible = false}};  // the help text's frame
  Label Label47{*this, "Label47", "Infos", {.in = &Picture8, .visible = false}};
  Label Label44{*this, "Label44", "", {.in = &Picture8}};                            // the help text
  Button MyButton26{*this, "MyButton26", "?", {.in = &Picture8}};                    // FCMax
  Button MyButton27{*this, "MyButton27", "?", {.in = &Picture8, .visible = false}};  // recovery
  Button MyButton28{*this, "MyButton28", "?", {.in = &Picture8}};                    // safety
  Button MyButton29{*this, "MyButton29", "?", {.in = &Picture8, .visible = false}};  // mean
  Button MyButton30{*this, "MyButton30", "?", {.in = &Picture8}};                    // FCRepos
  Button MyButton31{*this, "MyButton31", "?", {.in = &Picture8}};                    // light
  Button MyButton32{*this, "MyButton32", "?", {.in = &Picture8}};                    // light to moderate
  Button MyButton33{*this, "MyButton33", "?", {.in = &Picture8}};                    // strong
  Button MyButton34{*this, "MyButton34", "?", {.in = &Picture8}};                    // reserve
  Button MyButton35{*this, "MyButton35", "?", {.in = &Picture8}};                    // moderate
  Button MyButton36{*this, "MyButton36", "?", {.in = &Picture8}};                    // work rate
  Button MyButton37{*this, "MyButton37", "?", {.in = &Picture8}};                    // method
  Button MyButton39{*this, "MyButton39", "?", {.in = &Picture8}};                    // the whole module
  Button MyButton42{*this, "MyButton42", "?", {.in = &Picture8}};                    // display mode

  // Menus.
  MenuItem mnSupprimer{*this, "mnSupprimer", "Suppression", {.enabled = false}};  // pop-up of the delete cell
  MenuItem mnsupprim{*this, "mnsupprim", "Supprimer cette Ligne", {.in = &mnSupprimer}};
  MenuItem mnAjouterLigne{
      *this, "mnAjouterLigne", "Ajouter une Ligne Après Celle-CI...", {.in = &mnSupprimer}};
  MenuItem mnMenu{*this, "mnMenu", "Menu"};
  MenuItem mnImprim{*this, "mnImprim", "Imprimer la Liste", {.in = &mnMenu}};
  MenuItem mnUndo{*this, "mnUndo", "Annuler la Modification", {.in = &mnMenu, .enabled = false}};
  MenuItem mnRedo{*this, "mnRedo", "Rétablir la Modification", {.in = &mnMenu, .enabled = false}};
  MenuItem mnRows{
      *this, "mnRows", "Lignes", {.in = &mnMenu}};  // of the selected rows; also a pop-up of the list
  MenuItem mnCopyRows{*this, "mnCopyRows", "Copier", {.in = &mnRows}};
  MenuItem mnCutRows{*this, "mnCutRows", "Couper", {.in = &mnRows}};
  MenuItem mnPasteRows{*this, "mnPasteRows", "Coller", {.in = &mnRows}};
  MenuItem mnDuplicateRows{*this, "mnDuplicateRows", "Dupliquer", {.in = &mnRows}};
  MenuItem mnMoveRowsUp{*this, "mnMoveRowsUp", "Monter", {.in = &mnRows}};
  MenuItem mnMoveRowsDown{*this, "mnMoveRowsDown", "Descendre", {.in = &mnRows}};
  MenuItem mnRepeatRows{*this, "mnRepeatRows", "Répéter ces lignes…", {.in = &mnRows}};
  MenuItem mnSortir{*this, "mnSortir", "Sortir", {.in = &mnMenu}};  // closes the editor

  // All that poll rest. Timer7 does not: each of its ticks changes what is seen, while it is on.
  Timer Timer1{*this, "Timer1", 10};                       // keeps the cell editor on its row
  Timer Timer2{*this, "Timer2", 800};                      // once: hides the refusal badge
  Timer Timer3{*this, "Timer3", 10};                       // keeps the duration panel inside the list
  Timer Timer4{*this, "Timer4", 200};                      // sums the durations
  Timer Timer5{*this, "Timer5", 500, true};                // does nothing
  Timer Timer6{*this, "Timer6", 1000, true};               // looks for unfinished rows
  Timer Timer7{*this, "Timer7", 500};                      // makes MyButton11 blink
  Timer Timer8{*this, "Timer8", 600};                      // swaps two help images; nothing turns it on
  Timer Timer9{*this, "Timer9", 10, true};                 // follows the pointer over the cells
  Timer TimerUndoStep{*this, "TimerUndoStep", 1};          // once: ends a step of the history
  Timer Timer10{*this, "Timer10", 500};                    // watches the calculator
  Timer TimerDraft{*this, "TimerDraft", 1000};             // once: keeps the list; in a ride, when that rests
  Timer TimerForecast{*this, "TimerForecast", 300, true};  // looks whether the list has come to rest
  Timer TimerForecastSlice{*this, "TimerForecastSlice", 10};  // on while it is rehearsed
};

}  // namespace forms
