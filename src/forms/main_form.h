// The main screen: the ride, its countdown, the sound settings page, the menus.
#pragma once

#include "platform/controls.h"
#include "platform/menu.h"
#include "platform/timer.h"

namespace forms {

using platform::Button;
using platform::CheckBox;
using platform::ComboBox;
using platform::Frame;
using platform::Image;
using platform::Label;
using platform::MenuItem;
using platform::TextBox;
using platform::Timer;

struct MainForm : platform::Form {
  MainForm() : Form("MainForm", "Ventoria") {}

  // Containers.
  Frame MyFrame1{*this, "MyFrame1", ""};                        // title and duration of the session
  Frame MyFrame2{*this, "MyFrame2", "", {.visible = false}};    // the countdown frame
  Frame MyFrame4{*this, "MyFrame4", "", {.visible = false}};    // a part of the window that can be dragged
  Frame Picture1{*this, "Picture1", "", {.visible = false}};    // the sound settings page
  Frame Picture3{*this, "Picture3", "", {.visible = false}};    // the help panel
  Frame Picture6{*this, "Picture6", "", {.visible = false}};    // the ride panel
  Frame Picture12{*this, "Picture12", "", {.visible = false}};  // the contact notice
  Frame Frame5{*this, "Frame5", "", {.visible = false}};        // the volume notice
  Frame Picture2{*this, "Picture2", "", {.in = &Frame5, .tip = "Cliquer pour Continuer..."}};

  // The ride.
  Label Label1{*this, "Label1", "Heures", {.visible = false}};
  Label Label2{*this, "Label2", "Minutes", {.visible = false}};
  Label Label3{*this, "Label3", "Secondes", {.visible = false}};
  Label Label4{*this, "Label4", "00", {.visible = false}};  // hours left in the sequence
  Label Label5{*this, "Label5", "00", {.visible = false}};  // minutes
  Label Label6{*this, "Label6", "00", {.visible = false}};  // seconds
  Label Label10{*this, "Label10", "", {.visible = false}};  // cadence
  Label Label11{*this, "Label11", "", {.visible = false}};  // kind of sequence
  Label Label12{*this, "Label12", "", {.visible = false}};  // remark, always empty
  Label Label15{*this, "Label15", "", {.visible = false}};  // gear
  Label Label16{*this, "Label16", "", {.visible = false}};  // row and number of rows
  Label Label17{*this, "Label17", "", {.visible = false}};  // pass and number of passes
  Label Label20{*this, "Label20", "", {.visible = false}};  // chainring
  Label Label28{*this, "Label28", "Séances", {.visible = false}};
  Label Label29{*this, "Label29", "Séquences", {.visible = false}};
  Label Label39{*this, "Label39", "", {.visible = false}};  // chainring and gear in one text
  Label Label44{*this, "Label44", "", {.visible = false}};  // big heart-rate target, or the large messages
  Label Label40{*this, "Label40", "00:00:00", {.in = &Picture6}};  // time left of the whole run
  Label Label43{*this, "Label43", "", {.in = &Picture6}};          // a line of the ride panel
  Label EndTime{*this, "EndTime", "", {.in = &Picture6}};          // when the ride will be over

  // At rest.
  Label Label18{*this, "Label18", "Prêt pour une Nouvelle Séance d'Entraînement"};  // status line
  Label Label30{*this, "Label30", "Ventoria"};                                      // the product's name
  Image Image2{*this, "Image2", {.visible = false}};                                // help image
  Image Image4{*this, "Image4"};                                                    // idle image
  Image Image7{*this, "Image7"};                             // stands in for the chrono's digits
  Image Image19{*this, "Image19", {.visible = false}};       // a part of the window that can be dragged
  ComboBox Combo1{*this, "Combo1", "00"};                    // hours of the present duration
  ComboBox Combo2{*this, "Combo2", "00"};                    // minutes
  ComboBox Combo3{*this, "Combo3", "00"};                    // seconds
  ComboBox Combo4{*this, "Combo4", "", {.visible = false}};  // never filled
  ComboBox Combo6{*this, "Combo6", "", {.visible = false}};  // a film list that nothing fills

  // The rider's buttons.
  Button MyButton1{*this, "MyButton1", "Start", {.enabled = false}};  // opens the countdown frame, or stops
  Button Command7{*this, "Command7", "Pause", {.enabled = false}};    // suspends or resumes
  Button MyButton4{*this, "MyButton4", "Annuler", {.enabled = false, .tip = "Annuler et Remise à Zéro..."}};
  Button MyButton5{
      *this, "MyButton5", "Séances", {.tip = "Charger, Créer ou Retour aux Séances d'Entraînements..."}};
  Button Command2{*this, "Command2", "Menu", {.tip = "Cliquer pour Afficher le Menu Principal..."}};
  Button Command4{*this, "Command4", "Quitter", {.tip = "Fermer cette Fenêtre et Quitter le Programme..."}};
  Button MyButton19{*this,
                    "MyButton19",
                    "Musique",
                    {.visible = false, .tip = "Exécuter la Lecture de ma Bibliothèque Musicale..."}};
  Button MyButton21{*this,
                    "MyButton21",
                    "Arrêter la Musique",
                    {.visible = false, .tip = "Arrêter la Lecture de votre Sélection Musicale..."}};
  Button MyButton14{
      *this, "MyButton14", "Volume", {.visible = false}};  // opens the volume dialog for ten seconds

  // The countdown frame.
  Label Label13{
      *this, "Label13", "Compte à Rebours avant le Démarrage de la Séance d'Entraînement", {.in = &MyFrame2}};
  Label Label19{*this, "Label19", "", {.in = &MyFrame2}};  // title and duration
  Label Label9{*this, "Label9", "16", {.in = &MyFrame2}};  // seconds left
  Button MyButton3{*this,
                   "MyButton3",
                   "Démarrer Chrono",
                   {.in = &MyFrame2, .tip = "Démarrer le Compte à Rebours avant de Commencer..."}};
  Button MyButton2{
      *this, "MyButton2", "Annuler", {.in = &MyFrame2, .tip = "Annuler et Revenir pour le Choix..."}};
  Button MyButton9{*this, "MyButton9", "Fermer", {.in = &MyFrame2}};  // closes the frame
  ComboBox Combo5{*this, "Combo5", "16", {.in = &MyFrame2}};          // length of the countdown, s
  Button MyButton10{*this,
                    "MyButton10",
                    "Enregistrer",
                    {.in = &MyFrame2,
                     .enabled = false,
                     .tip = "Cliquez pour Enregistrer la Modification de la Durée du Chrono..."}};

  // The sound settings page.
  CheckBox Check1{*this, "Check1", " Avertissement Sonore Seulement", {.in = &Picture1}};
  CheckBox Check2{*this, "Check2", " Activer les Annonces Sonores et Vocales", {.in = &Picture1}};
  CheckBox Check3{*this, "Check3", "Annoncer le Numéro de (Séance).", {.in = &Picture1}};
  CheckBox Check4{*this, "Check4", "Annoncer le Numéro de (Séquence).", {.in = &Picture1}};
  CheckBox Check5{*this, "Check5", "Annoncer la Fréquence de la (Cadence de Pédalage).", {.in = &Picture1}};
  CheckBox Check6{*this, "Check6", "Annoncer le (Type de Plateau).", {.in = &Picture1}};
  CheckBox Check7{*this, "Check7", "Annoncer le (Type de Braquet).", {.in = &Picture1}};
  CheckBox Check8{*this, "Check8", "Prévenir à mi-parcours pour (chaque Séquence).", {.in = &Picture1}};
  CheckBox Check9{
      *this, "Check9", "Jouer les (Annonces Vocales Personnelles Enregistrées).", {.in = &Picture1}};
  CheckBox Check10{
      *this,
      "Check10",
      "Jouer la Musique d'Ambiance en arrière plan, mais les (Interrompre) lorsqu'une Annonce doit être Exécutée.",
      {.in = &Picture1}};
  CheckBox Check11{
      *this,
      "Check11",
      "Jouer les  Musiques d'Ambiances en (Continu) en tant que Musique de fond, donc sans coupure par les Avertissements Sonores.",
      {.in = &Picture1}};
  CheckBox Check12{*this,
                   "Check12",
                   "Enregistrer (le choix Perso) de la Durée du Chrono de Démarrage.",
                   {.in = &Picture1}};
  CheckBox Check13{*this, "Check13", "Annoncer le (Nom de la Cadence de Pédalage).", {.in = &Picture1}};
  Label Label31{*this, "Label31", Check11.caption.get(), {.in = &Picture1}};  // beside Check11
  Label Label33{*this, "Label33", Check10.caption.get(), {.in = &Picture1}};  // beside Check10
  Button MyButton7{
      *this,
      "MyButton7",
      "Confirmer",
      {.in = &Picture1,
       .tip =
           "Cliquez ici pour Confirmer vos Modifications sur les Paramètres des Avertissements Sonores..."}};
  Button MyButton8{
      *this,
      "MyButton8",
      "Paramètres par Défaut",
      {.in = &Picture1, .tip = "Cliquez ici pour Mettre les Paramètres par Défaut du Programme..."}};
  Button MyButton16{
      *this,
      "MyButton16",
      "Mes Paramètres Enregistrés",
      {.in = &Picture1,
       .tip = "Cliquez ICI pour Régler avec mes Derniers Paramètres Personnels Enregistrés..."}};
  Button MyButton6{*this,
                   "MyButton6",
                   "Fermer",
                   {.in = &Picture1, .tip = "Fermer cette Fenêtre des Paramètres (Sons)..."}};
  Button MyButton13{
      *this,
      "MyButton13",
      "Volume Général",
      {.in = &Picture1, .tip = "Cliquez ici pour Régler le Volume Général du Son de votre Ordinateur..."}};

  // Help, notices, volume.
  Image Image13{*this, "Image13", {.tip = "Afficher/Enlever l'Aide..."}};  // opens and closes the help panel
  Image Image15{*this, "Image15"};                                         // the films
  Label Label35{*this, "Label35", "", {.in = &Picture3}};                  // the help text
  TextBox Text7{*this, "Text7", "contact@ventoria.example", {.in = &Picture12}};
  Button MyButton20{*this, "MyButton20", "Fermer", {.in = &Picture12}};
  Label Label34{*this, "Label34", ""};  // state of the sound
  Label Label36{*this, "Label36", ""};  // advice about the volume
  Label Label38{*this, "Label38", "Volume Actuel ()"};
  Image Image17{*this, "Image17", {.visible = false}};  // sound on
  Image Image18{*this, "Image18", {.visible = false}};  // sound off

  // The main menu.
  MenuItem mnMenuPrincipal{*this, "mnMenuPrincipal", "Menu"};
  MenuItem mnEnvoyer{
      *this, "mnEnvoyer", "Envoyer un Message à l'Auteur (plus disponible)...", {.in = &mnMenuPrincipal}};
  MenuItem mnVisitSite{*this, "mnVisitSite", "Visiter le Site de l'Auteur", {.in = &mnMenuPrincipal}};
  MenuItem mnMenuVentoria{*this,
                          "mnMenuVentoria",
                          "En Savoir plus (Présentation de Ventoria Version 1) sur Site",
                          {.in = &mnMenuPrincipal}};
  MenuItem mnPartenaire{
      *this, "mnPartenaire", "Site d'un Partenaire Actif et Amoureux du Cycle...", {.in = &mnMenuPrincipal}};
  MenuItem mnVerAct{*this, "mnVerAct", "Version Actuelle", {.in = &mnMenuPrincipal}};
  MenuItem mnMAJ{
      *this, "mnMAJ", "Désormais ce Logiciel est Gratuit et sans Mise à Jour...", {.in = &mnMenuPrincipal}};
  MenuItem mnSyst{*this, "mnSyst", "Système", {.in = &mnMenuPrincipal}};
  MenuItem mnDesisntal{*this, "mnDesisntal", "Désinstaller Ventoria", {.in = &mnSyst}};
  MenuItem mnSauvegarde{*this, "mnSauvegarde", "Sauvegarde", {.in = &mnMenuPrincipal}};
  MenuItem mnImport{
      *this, "mnImport", "Importer une Sauvegarde de Séance d'Entraînement", {.in = &mnSauvegarde}};
  MenuItem mnExport{
      *this, "mnExport", "Exporter cette Sauvegarde de Séance d'Entraînement", {.in = &mnSauvegarde}};
  MenuItem mnCreat{
      *this, "mnCreat", "Création ou Liste de (Séances d'Entraînement)", {.in = &mnMenuPrincipal}};
  MenuItem mnsons{*this, "mnsons", "Réglage Paramètres des Avertissements Sonores", {.in = &mnMenuPrincipal}};
  MenuItem mnSortir{*this, "mnSortir", "Sortir du Menu", {.in = &mnMenuPrincipal}};
  MenuItem mnAnnVocabl{
      *this, "mnAnnVocabl", "Annonces Vocales et Ambiance Musicale", {.in = &mnMenuPrincipal}};
  MenuItem mnEnrAnnVocale{*this, "mnEnrAnnVocale", "Enregistrer une Annonce Vocale", {.in = &mnAnnVocabl}};
  MenuItem mnAjusterAudio{*this, "mnAjusterAudio", "Ajuster les Propriétés Audio", {.in = &mnAnnVocabl}};
  MenuItem mnVolume{*this, "mnVolume", "Régler le Volume Général du Son", {.in = &mnAnnVocabl}};
  MenuItem mnambiance{*this,
                      "mnambiance",
                      "Mettre une Ambiance Musicale pendant la (Séance d'Entraînement)",
                      {.in = &mnAnnVocabl}};
  MenuItem mnAideVideo{*this, "mnAideVideo", "Aide en Vidéo", {.in = &mnAnnVocabl}};
  // The pop-up of MyButton19.
  MenuItem mnMenu1{*this, "mnMenu1", ""};
  MenuItem mnAjustAudio{*this, "mnAjustAudio", "Ajuster les Propriétés Audio", {.in = &mnMenu1}};
  MenuItem mnRGS{*this, "mnRGS", "Régler le Volume Général du Son", {.in = &mnMenu1}};
  MenuItem mnSelctMusiqPrefere{
      *this, "mnSelctMusiqPrefere", "Sélectionner mes Musiques Préférées...", {.in = &mnMenu1}};
  // The pop-up of MyButton21.
  MenuItem mnMenu2{*this, "mnMenu2", ""};
  MenuItem mnRGS2{*this, "mnRGS2", "Régler le Volume Général du Son", {.in = &mnMenu2}};
  MenuItem mnAjustAudio2{*this, "mnAjustAudio2", "Ajuster les Propriétés Audio", {.in = &mnMenu2}};

  // Timer3 rests. Timer1 and Timer2 are the ride itself, and Timer9 asks a desktop that tells of nothing.
  Timer Timer1{*this, "Timer1", 1000};        // the chrono's tick
  Timer Timer2{*this, "Timer2", 1000};        // the start countdown
  Timer Timer3{*this, "Timer3", 1000, true};  // the watch on the buttons and the settings
  Timer Timer4{*this, "Timer4", 100};         // once: presses MyButton1 after a hand-over
  Timer Timer6{*this, "Timer6", 100};         // once: presses MyButton4 for the editor
  Timer Timer7{*this, "Timer7", 10000};       // once: closes the volume dialog
  Timer Timer8{*this, "Timer8", 100};         // once: opens the sound settings page for the editor
  Timer Timer9{*this, "Timer9", 6000};        // keeps the screen saver off
  Timer Timer10{*this, "Timer10", 1000};      // once: brings the ride panel back
  Timer TimerEnd{*this, "TimerEnd", 10};      // on while a rehearsal goes on, or a pause puts the end off
};

}  // namespace forms
