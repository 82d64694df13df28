#include "editor/page.h"

#include <utility>

#include "editor/layout.h"
#include "forms/creer_cycle_words.h"
#include "model/training_model.h"

namespace editor {

Page::Page(const context::Context& context, voice::Voice& voice)
    : context_(context),
      editor_(context.screens.editor),
      calculator_(context),
      lines_(context),
      rows_(context, lines_),
      drafts_(context),
      forecast_(context),
      cells_(context, calculator_),
      files_(context, voice, lines_, drafts_),
      listWatch_(context),
      history_(context) {
  editor_.onLoad.handle([this] { open(); });
  editor_.MyButton6.click.handle([this] { editor_.mnSortir.click(); });
  editor_.mnSortir.click.handle([this] { leave(); });
  editor_.MyButton7.click.handle([this] { toggleListMode(); });
  editor_.MyFrame2.doubleClick.handle([this] { toggleListMode(); });
  editor_.Label9.doubleClick.handle([this] { toggleListMode(); });
  connectHoverHelp();
}

void Page::open() {
  editor_.Combo2.setLines(model::twoDigits(23));
  editor_.Combo3.setLines(model::twoDigits(59));
  editor_.Combo4.setLines(model::twoDigits(59));
  for (platform::ComboBox* box : forms::durationBoxes(editor_)) box->text = "00";
  listFiles();
  editor_.MyButton9.caption = "Créer ou Charger\nune Séance d'Entrainement";
  editor_.Label8.caption = "Ventoria";
  setTips();
  calculator_.load([this] { editor_.MyButton2.click(); });
  history_.clear();
  drafts_.open();
}

void Page::listFiles() {
  editor_.File1.path = context_.state.dossierAnnonces;
  editor_.File2.path = context_.state.dossierSeances;
  editor_.File3.path = context_.state.dossierProgramme + "Vid/";
  for (const std::string& film : editor_.File3.lines()) editor_.Combo6.addLine(film);
}

void Page::setTips() {
  const std::pair<forms::Button*, const char*> tips[] = {
      {&editor_.MyButton14,
       "Par Principe, une Séance d'entraînement doit être Composée\n"
       "de plusieurs Séquences par Ex: (Echauffement-Accélération-Repos) Etc...\n"
       "Donnez-lui un Nom pour la Différencier des Autres..."},
      {&editor_.MyButton15,
       "Définir le Type de Séquence dans votre Parcours\nau fur et à mesure de votre Projet..."},
      {&editor_.MyButton16, "Choisir votre Cadence de Pédalage en (Tours par Minute)..."},
      {&editor_.MyButton17, "Choisir votre Plateau (Petit ou Grand)\nou par (Nombre de Dents)..."},
      {&editor_.MyButton18,
       "Définir le Type de Braquet\nPetit Braquet=Grand Pignon\nGrand Braquet=Petit Pignon\nou par (Nombre de Dents)..."},
      {&editor_.MyButton19,
       "Une Séance peut-être Répétée selon votre Souhait\ndéfinir Répéter à (Oui/Non)..."},
      {&editor_.MyButton20,
       "Toutes les Séances d'Entraînements\npeuvent être Répétées jusqu'à 20 Fois\nsi le Mode Répéter est (OUI)..."},
      {&editor_.MyButton21,
       "ICI vous Définissez la Durée de chaques Séquences\nComposant une Séance d'entraînement..."},
      {&editor_.MyButton22,
       "ICI vous pouvez Insérer à un moment précis\nune Annonce Vocale Indispenssable avant une Séquence\nRédigée par vos soins ou par votre Coach..."},
      {&editor_.MyButton23,
       "En Cliquant sur la Croix et en Faisant Clic-Droit:\n- Vous pouvez Supprimer la Ligne Sélectionnée\n- ou Ajouter une Ligne après celle Sélectionnée"},
      {&editor_.MyButton25,
       "ICI, vous mettez la Fréquence Cardiaque à Atteindre ou à ne pas Dépasser\nCette Fréquence doit-être Donnée par votre Coatch\nou bien vous devez Maitriser son Réglage en Fonction de vos Possibilités..."}};
  for (const auto& [button, tip] : tips) button->toolTip = tip;
}

void Page::connectHoverHelp() {
  const auto explain = [this](platform::Control& control, const char* text) {
    control.hover.handle([this, text] {
      editor_.Label24.visible = false;
      editor_.Label23.caption = text;
    });
  };
  explain(editor_.MyButton1,
          "Ajouter une Séquence (Nouvelle Ligne) à la Séance d'Entrainement en cours de Réalisation.");
  explain(editor_.MyButton2, "Efface Complètement la Liste Actuelle, pour Créer une Nouvelle Séance.\n");
  explain(editor_.MyButton5,
          "Démarrer la Séance d'Entrainement que vous venez de Réaliser ou que vous venez de Charger.");
  explain(editor_.MyButton6, "Aller à la Page Principale, sans Vider la Liste Actuelle.");
  explain(
      editor_.MyButton7,
      "Cliquez ici pour Mettre en Mode Normal ou Total, pratique pour les Séances d'Entrainement comportant beaucoup de Séquences...");
  explain(
      editor_.MyButton11,
      "une Ligne en (Rouge) indique qu'elle n'est pas Terminée, parce que certaines de ses cellules restent encore Vides...Elle ne sera pas prise en Compte lors du Lancement de la Séance d'Entrainement.");
  explain(
      editor_.Command4,
      "Vider la Liste, signifie que la Liste Actuellement en Cours sera complètement éffacée, ainsi vous serez prêt à en Créer une autre");
  explain(editor_.Command5, "Charger ou Ajouter une Séance d'Entrainement déjà Réalisée et Enregistrée.");
  explain(editor_.Command6,
          "Enregistrer la Séance d'Entrainement de la Liste en lui donnant le (Nom) de votre choix.");
  explain(editor_.Command35, "Imprimer la Séance d'Entrainement Actuellement Affichée.");
  explain(editor_.Image1, "Si vous avez besoin d'Aide Visuellement, Cliquez ici et consultez les Vidéos...");
  const char* movable =
      "Vous pouvez me Déplacer en restant (Cliqué-Gauche), de cette façon vous pourrez avoir de l'information sans vous géner, au fur et à mesure de votre Création...";
  explain(editor_.Label25, movable);
  explain(editor_.Picture3, movable);
  explain(editor_.Picture5, movable);
}

void Page::toggleListMode() {
  editor_.maximised = !editor_.maximised;
  const bool whole = editor_.maximised;
  editor_.MyFrame2.toolTip = whole ? "Double-Cliquez ICI pour Diminuer la Liste en Mode Normal..."
                                   : "Double-Cliquez ICI pour Agrandir la Liste en Plein Ecran...";
  editor_.MyButton7.toolTip = whole ? "Double-Cliquez ici pour Diminuer la Zone de Liste..."
                                    : "Double-Cliquez ici pour Agrandir la Zone de Liste...";
  sizeGrid(editor_);
  recalerColonnes(editor_);
}

void Page::leave() {
  editor_.hide();
  context_.screens.main.show();
}

}  // namespace editor
