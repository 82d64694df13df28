// Own announcements (recording, stored ones, listening level) and, over them, the music library.
#pragma once

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/menu.h"
#include "platform/timer.h"

namespace forms {

using platform::Button;
using platform::CheckBox;
using platform::FileList;
using platform::Frame;
using platform::Grid;
using platform::Image;
using platform::Label;
using platform::MenuItem;
using platform::ProgressBar;
using platform::ScrollBar;
using platform::Timer;

struct EnrUneAnnonce : platform::Form {
  EnrUneAnnonce() : Form("EnrUneAnnonce", "Ventoria") {}

  // Containers. The library lies over the recording panel, its selection list and its import over itself.
  Frame MyFrame3{*this, "MyFrame3", "Enregistrement d'une Annonce Vocale"};
  Frame MyFrame2{*this, "MyFrame2", "Volume", {.in = &MyFrame3}};  // the listening level
  Frame MyFrame1{*this, "MyFrame1", "Ma Bibliothèque de Musiques d'Ambiances", {.visible = false}};
  Frame MyFrame5{*this, "MyFrame5", "", {.in = &MyFrame1, .visible = false}};  // the selection list
  Frame MyFrame6{*this, "MyFrame6", "", {.in = &MyFrame1, .visible = false}};  // the import's progress
  Frame MyFrame4{*this, "MyFrame4", "Page Info...", {.visible = false}};       // over everything

  // Recording.
  Button Command2{*this,
                  "Command2",
                  "Enregistrer la Voix",
                  {.in = &MyFrame3, .tip = "Démarrer l'Enregistrement d'une Nouvelle Annonce Vocale..."}};
  Button MyButton10{*this, "MyButton10", "Enregistrer Ambiance et Voix", {.in = &MyFrame3}};
  Button Command3{*this,
                  "Command3",
                  "Stopper l'Enregistrement en Cours",
                  {.in = &MyFrame3,
                   .enabled = false,
                   .tip = "Cliquez dès que vous n'avez plus rien à dire dans votre Annonce..."}};
  Button Command4{
      *this,
      "Command4",
      "Ecouter l'Annonce Enregistrée",
      {.in = &MyFrame3, .enabled = false, .tip = "écoutez l'Annonce que vous venez d'Enregistrer..."}};
  Button Command1{
      *this,
      "Command1",
      "Enregistrer l'Annonce",
      {.in = &MyFrame3,
       .enabled = false,
       .tip = "Cliquez pour Enregistrer l'Annonce que vous venez de Vérifier et d'Enregistrer..."}};
  Button Command5{*this, "Command5", "Statistics", {.in = &MyFrame3}};  // refreshes the take's figures
  Button MyButton7{*this, "MyButton7", "Quitter", {.in = &MyFrame3}};
  Label Label1{*this, "Label1", "Prêt pour Enregistrer une Annonce", {.in = &MyFrame3}};  // status
  Label Label14{*this, "Label14", "", {.in = &MyFrame3}};                                 // message
  Label Label8{*this, "Label8", "", {.in = &MyFrame3}};                                   // size of the take
  Label Label3{*this, "Label3", "", {.in = &MyFrame3}};  // figures of the take, a line each

  // A stored announcement.
  Button Command6{*this, "Command6", "Ouvrir une Annonce Enregistrée", {.in = &MyFrame3}};
  Button Command7{*this, "Command7", "Play", {.in = &MyFrame3}};
  Button Command15{*this, "Command15", "Pause", {.in = &MyFrame3}};
  Button Command14{*this, "Command14", "Stop", {.in = &MyFrame3}};
  Button MyButton5{*this, "MyButton5", "Rejouer", {.in = &MyFrame3}};
  Button MyButton6{*this, "MyButton6", "Fin->", {.in = &MyFrame3}};  // has no action
  Button MyButton8{*this, "MyButton8", "Détruire cette Annonce", {.in = &MyFrame3, .enabled = false}};
  Label Label9{*this, "Label9", "Lire une Annonce Enregistrée", {.in = &MyFrame3}};  // or its name
  Label Label15{*this, "Label15", "", {.in = &MyFrame3}};                            // its full path
  Label Label16{*this, "Label16", "", {.in = &MyFrame3, .visible = false}};          // its length
  Label Label17{*this, "Label17", "", {.in = &MyFrame3, .visible = false}};          // its position

  // The listening level.
  ScrollBar VScroll1{
      *this,
      "VScroll1",
      {11, 1},
      1,
      {.in = &MyFrame2, .tip = "Le Volume Joue Uniquement sur ce que vous Entendez, et non sur le Micro..."}};
  ScrollBar HScroll1{*this, "HScroll1", {-2, 2}, 0, {.in = &MyFrame2, .tip = "Balance"}};
  Label Label10{*this, "Label10", "Balance", {.in = &MyFrame2}};
  ScrollBar HScroll3{
      *this, "HScroll3", {1000, 1000}, 1000, {.in = &MyFrame2, .tip = "Vitesse du Fondu"}};  // does not move
  Label Label11{*this, "Label11", "Vitesse du Fondu", {.in = &MyFrame2}};
  Button MyButton1{*this, "MyButton1", "Mini", {.in = &MyFrame2}};  // fades out
  Button MyButton2{*this, "MyButton2", "Maxi", {.in = &MyFrame2}};  // fades in

  // Advice.
  Image Image1{*this, "Image1", {.in = &MyFrame3}};  // opens the information panel
  Image Image5{*this, "Image5", {.in = &MyFrame3}};  // so does this
  Label Label19{
      *this,
      "Label19",
      "Pour Enregistrer une Annonce Vocale, vous devez disposer d'un Micro Activé sur votre Ordinateur, ou d'un Micro Externe paramétré. Si vous rencontrez un problème d'enregistrement, vous devez chercher à régler les Périphériques Audio de votre Ordinateur. Généralement sur XP allez dans Démarrer, puis Cliquez sur Panneau de configuration, puis Cliquez sur Sons et Périphériques Audio...ou sur Vista , allez dans Démarrer, puis Cliquez sur Panneau de configuration, puis Cliquez sur Gérer les Périphériques Audio..., ou sur Seven Cliquer sur Panneau de Configuration, puis sur Matériel et Audio, puis Cliquez sur les Rubriques de Son...",
      {.in = &MyFrame4}};
  Button MyButton3{*this, "MyButton3", "Quitter cette Page Info", {.in = &MyFrame4}};
  Button MyButton14{*this, "MyButton14", "Afficher les Propriétés Audio", {.in = &MyFrame4}};

  // The music library.
  FileList File1{*this, "File1", "*.mp3", {.in = &MyFrame1, .visible = false}};  // what it holds
  Button MyButton4{
      *this, "MyButton4", "Importer une Musique dans votre Bibliothèque Musicale", {.in = &MyFrame1}};
  Button Command8{
      *this, "Command8", "Choix de vos Musiques de Fond pour votre Séance d'Entrainement", {.in = &MyFrame1}};
  Button MyButton9{*this, "MyButton9", "Quitter", {.in = &MyFrame1}};
  Button MyButton15{*this, "MyButton15", "Volume", {.in = &MyFrame1}};  // opens the volume dialog
  Label Label20{*this,
                "Label20",
                "Actuellement (0) Musiques d'Ambiances dans votre Bibliothèque Musicale",
                {.in = &MyFrame1}};
  Label Label6{
      *this, "Label6", "Actuellement Aucune Ambiance Musicale Choisie", {.in = &MyFrame1}};  // or its name
  Label Label23{*this, "Label23", "", {.in = &MyFrame1, .visible = false}};  // the name, shrunk to fit
  Label Label26{*this, "Label26", "", {.in = &MyFrame1, .visible = false}};  // only measures
  Label Label2{*this, "Label2", "Durée de cette Musique =", {.in = &MyFrame1}};
  Label Label7{*this, "Label7", "", {.in = &MyFrame1, .visible = false}};
  Label Label4{*this, "Label4", "  Etat de la Lecture =", {.in = &MyFrame1}};
  Label Label5{*this, "Label5", "", {.in = &MyFrame1, .visible = false}};
  Button Command10{*this, "Command10", "Play", {.in = &MyFrame1, .enabled = false}};
  Button Command9{*this, "Command9", "Pause", {.in = &MyFrame1, .enabled = false}};
  Button Command11{*this, "Command11", "Stop", {.in = &MyFrame1, .enabled = false}};
  Button Command12{*this, "Command12", "<-Début", {.in = &MyFrame1, .enabled = false}};
  Button Command13{*this, "Command13", "Suivant->", {.in = &MyFrame1, .enabled = false}};
  ScrollBar VScroll2{*this, "VScroll2", {100, 0}, 100, {.in = &MyFrame1}};  // the machine's volume, too
  Label Label24{*this, "Label24", "Volume 10", {.in = &MyFrame1}};

  // The selection list.
  Grid ListView1{*this, "ListView1", {.in = &MyFrame5}};
  Label Label22{*this, "Label22", "(0) Musique d'Ambiance", {.in = &MyFrame5}};
  CheckBox Check1{*this, "Check1", " Tout Sélectionner ", {.in = &MyFrame5}};
  Label Label21{*this, "Label21", " Tout Sélectionner ", {.in = &MyFrame5}};
  CheckBox Check2{*this, "Check2", "Répéter la Sélection", {.in = &MyFrame5}};
  Label Label25{*this, "Label25", "Répéter la Sélection", {.in = &MyFrame5}};
  Button MyButton12{*this, "MyButton12", "Aucune Musique Sélectionnée", {.in = &MyFrame5, .enabled = false}};
  Button MyButton13{*this, "MyButton13", "Vider la Liste de Lecture", {.in = &MyFrame5}};
  Button MyButton11{*this, "MyButton11", "Retour", {.in = &MyFrame5}};

  // An import that is under way.
  Label Label27{*this, "Label27", "", {.in = &MyFrame6}};  // what is being copied
  ProgressBar ProgressBar1{*this, "ProgressBar1", {.in = &MyFrame6}};
  Button MyButton16{*this, "MyButton16", "Arrêter l'Importation", {.in = &MyFrame6}};

  // Pop-ups of the selection list: over the names, and over the crosses.
  MenuItem mnEcout{*this, "mnEcout", "Ecouter la Musique", {.enabled = false}};
  MenuItem mnEcouter{*this, "mnEcouter", "Ecouter cette Musique", {.in = &mnEcout}};
  MenuItem mnsupDef{*this,
                    "mnsupDef",
                    "Supprimer Uniquement cette Musique Définitivement de ma Bibliothèque",
                    {.in = &mnEcout}};
  MenuItem mnSupTotBiblioth{*this,
                            "mnSupTotBiblioth",
                            "Supprimer Définitivement Toutes les Musiques de ma Bibliothèque",
                            {.in = &mnEcout}};
  MenuItem mnsupress{*this, "mnsupress", "Suppression", {.enabled = false}};
  MenuItem mnsupprim{
      *this, "mnsupprim", "Supprimer cette Musique de ma Liste Uniquement", {.in = &mnsupress}};
  MenuItem mnViderListe{*this, "mnViderListe", "Vider la Liste et Remettre à jour", {.in = &mnsupress}};

  // Timer2 and Timer4 rest. The others are on only while a take or an announcement runs or a level fades:
  // what they ask for moves by itself.
  Timer Timer1{*this, "Timer1", 500};         // watches the recorder
  Timer Timer2{*this, "Timer2", 100, true};   // applies the listening level
  Timer Timer3{*this, "Timer3", 1000};        // shows the take's duration, ends it after 30 s
  Timer Timer4{*this, "Timer4", 1000, true};  // watches the end of a piece of music
  Timer Timer5{*this, "Timer5", 100};         // fades out
  Timer Timer6{*this, "Timer6", 100};         // fades in
  Timer Timer7{*this, "Timer7", 1000};        // counts the seconds of the take
  Timer Timer8{*this, "Timer8", 1000};        // counts those listened to
  Timer Timer9{*this, "Timer9", 100};         // follows a stored announcement
  Timer Timer10{*this, "Timer10", 10};        // once: presses MyButton1
  Timer Timer11{*this, "Timer11", 10};        // once: presses MyButton2
  Timer Timer12{*this, "Timer12", 10};        // once: starts the ticked selection
  Timer Timer13{*this, "Timer13", 10};        // once: starts the whole library
  Timer Timer14{*this, "Timer14", 10};        // once: opens the selection list
};

}  // namespace forms
