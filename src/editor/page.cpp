#include "editor/page.h"

#include <utility>

#include "editor/layout.h"
#include "model/training_model.h"

namespace editor {

Page::Page(const context::Context& context, voice::Voice& voice)
    : context_(context),
      form_(context.screens.editor),
      calculator_(context),
      lines_(context),
      cells_(context, calculator_),
      files_(context, voice, lines_),
      totals_(context),
      history_(context) {
  form_.onLoad.handle([this] { open(); });
  form_.MyButton6.click.handle([this] { form_.mnSortir.click(); });
  form_.mnSortir.click.handle([this] { leave(); });
  form_.MyButton7.click.handle([this] { toggleListMode(); });
  form_.MyFrame2.doubleClick.handle([this] { toggleListMode(); });
  form_.Label9.doubleClick.handle([this] { toggleListMode(); });
  connectHoverHelp();
}

void Page::open() {
  form_.Combo2.setLines(model::twoDigits(23));
  form_.Combo3.setLines(model::twoDigits(59));
  form_.Combo4.setLines(model::twoDigits(59));
  for (auto* box : {&form_.Combo2, &form_.Combo3, &form_.Combo4}) box->text = "00";
  listFiles();
  form_.MyButton9.caption = "Créer ou Charger\nune Séance d'Entrainement";
  form_.Label8.caption = "Ventoria";
  setTips();
  calculator_.chargerListes();
  calculator_.lireAuChargement();
  form_.MyButton2.click();
  calculator_.finirChargement();
  history_.forget();
}

void Page::listFiles() {
  form_.File1.path = context_.state.dossierAnnonces;
  form_.File2.path = context_.state.dossierSeances;
  form_.File3.path = context_.state.dossierProgramme + "Vid/";
  for (const std::string& film : form_.File3.lines()) form_.Combo6.addLine(film);
}

void Page::setTips() {
  const std::pair<forms::Button*, const char*> tips[] = {
      {&form_.MyButton14,
       "Par Principe, une Séance d'entraînement doit être Composée\n"
       "de plusieurs Séquences par Ex: (Echauffement-Accélération-Repos) Etc...\n"
       "Donnez-lui un Nom pour la Différencier des Autres..."},
      {&form_.MyButton15,
       "Définir le Type de Séquence dans votre Parcours\nau fur et à mesure de votre Projet..."},
      {&form_.MyButton16, "Choisir votre Cadence de Pédalage en (Tours par Minute)..."},
      {&form_.MyButton17, "Choisir votre Plateau (Petit ou Grand)\nou par (Nombre de Dents)..."},
      {&form_.MyButton18,
       "Définir le Type de Braquet\nPetit Braquet=Grand Pignon\nGrand Braquet=Petit Pignon\nou par (Nombre "
       "de "
       "Dents)..."},
      {&form_.MyButton19, "Une Séance peut-être Répétée selon votre Souhait\ndéfinir Répéter à (Oui/Non)..."},
      {&form_.MyButton20,
       "Toutes les Séances d'Entraînements\npeuvent être Répétées jusqu'à 20 Fois\nsi le Mode Répéter est "
       "(OUI)..."},
      {&form_.MyButton21,
       "ICI vous Définissez la Durée de chaques Séquences\nComposant une Séance d'entraînement..."},
      {&form_.MyButton22,
       "ICI vous pouvez Insérer à un moment précis\nune Annonce Vocale Indispenssable avant une "
       "Séquence\nRédigée "
       "par vos soins ou par votre Coach..."},
      {&form_.MyButton23,
       "En Cliquant sur la Croix et en Faisant Clic-Droit:\n- Vous pouvez Supprimer la Ligne Sélectionnée\n- "
       "ou "
       "Ajouter une Ligne après celle Sélectionnée"},
      {&form_.MyButton25,
       "ICI, vous mettez la Fréquence Cardiaque à Atteindre ou à ne pas Dépasser\nCette Fréquence doit-être "
       "Donnée "
       "par votre Coatch\nou bien vous devez Maitriser son Réglage en Fonction de vos Possibilités..."}};
  for (const auto& [button, tip] : tips) button->toolTip = tip;
}

void Page::connectHoverHelp() {
  const auto explain = [this](platform::Control& control, const char* text) {
    control.hover.handle([this, text] {
      form_.Label24.visible = false;
      form_.Label23.caption = text;
    });
  };
  explain(form_.MyButton1,
          "Ajouter une Séquence (Nouvelle Ligne) à la Séance d'Entrainement en cours de Réalisation.");
  explain(form_.MyButton2, "Efface Complètement la Liste Actuelle, pour Créer une Nouvelle Séance.\n");
  explain(form_.MyButton5,
          "Démarrer la Séance d'Entrainement que vous venez de Réaliser ou que vous venez de Charger.");
  explain(form_.MyButton6, "Aller à la Page Principale, sans Vider la Liste Actuelle.");
  explain(
      form_.MyButton7,
      "Cliquez ici pour Mettre en Mode Normal ou Total, pratique pour les Séances d'Entrainement comportant "
      "beaucoup de Séquences...");
  explain(
      form_.MyButton11,
      "une Ligne en (Rouge) indique qu'elle n'est pas Terminée, parce que certaines de ses cellules restent "
      "encore Vides...Elle ne sera pas prise en Compte lors du Lancement de la Séance d'Entrainement.");
  explain(form_.Command4,
          "Vider la Liste, signifie que la Liste Actuellement en Cours sera complètement éffacée, ainsi vous "
          "serez "
          "prêt à en Créer une autre");
  explain(form_.Command5, "Charger ou Ajouter une Séance d'Entrainement déjà Réalisée et Enregistrée.");
  explain(form_.Command6,
          "Enregistrer la Séance d'Entrainement de la Liste en lui donnant le (Nom) de votre choix.");
  explain(form_.Command35, "Imprimer la Séance d'Entrainement Actuellement Affichée.");
  explain(form_.Image1, "Si vous avez besoin d'Aide Visuellement, Cliquez ici et consultez les Vidéos...");
  const char* movable =
      "Vous pouvez me Déplacer en restant (Cliqué-Gauche), de cette façon vous pourrez avoir de "
      "l'information "
      "sans vous géner, au fur et à mesure de votre Création...";
  explain(form_.Label25, movable);
  explain(form_.Picture3, movable);
  explain(form_.Picture5, movable);
}

void Page::toggleListMode() {
  form_.maximised = !form_.maximised;
  const bool whole = form_.maximised;
  form_.MyFrame2.toolTip = whole ? "Double-Cliquez ICI pour Diminuer la Liste en Mode Normal..."
                                 : "Double-Cliquez ICI pour Agrandir la Liste en Plein Ecran...";
  form_.MyButton7.toolTip = whole ? "Double-Cliquez ici pour Diminuer la Zone de Liste..."
                                  : "Double-Cliquez ici pour Agrandir la Zone de Liste...";
  sizeGrid(form_);
  recalerColonnes(form_);
}

void Page::leave() {
  form_.hide();
  context_.screens.main.show();
}

}  // namespace editor
