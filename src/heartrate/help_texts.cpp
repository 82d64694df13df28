#include "heartrate/help_texts.h"

#include <array>

namespace heartrate {
namespace {

using forms::CreerCycle;

struct HelpText {
  platform::Button CreerCycle::*button;
  const char* text;
};

constexpr std::array<HelpText, 12> texts{{
    {&CreerCycle::MyButton26,
     "Fréquences cardiaques Maximale est (prise au pouls ou avec un cardio-fréquencemètre). La fréquence cardiaque (FC) est un indicateur du travail fourni par le muscle cardiaque. Ce travail se traduit généralement en battements par minute (bpm). La FCMax est la FC la plus haute obtenue lors d'un effort, à la limite de l'épuisement. C'est un paramètre fréquemment utilisé dans le calcul des intensités d'entraînement.\nLa mesure la plus précise de votre FCMax se fera sur un test d'effort (en centre médico-sportif par exemple). C'est également le moyen le plus sécuritaire si vous êtes plutôt sédentaire, âgé de plus de 35 ans et n'avez pas pratiqué de sport depuis plusieurs mois."},
    {&CreerCycle::MyButton28,
     "Cette FC est utilisée pour déterminer la zone de travail des sportifs débutants ou des patients en réadaptation cardiaque.\n\nElle se situe entre 60-70% de FCMax et représente la zone à l'intérieur de laquelle l'exercice sera efficace et sans danger pour votre Cøeur."},
    {&CreerCycle::MyButton30,
     "La fréquence cardiaque de repos correspond à la FC relevée après un repos complet en position allongée (environ 10 mn d'inactivité). La FC de repos diminuera après un entraînement régulier, et ce grâce à une capacité de travail accrue du coeur.\nDés le réveil, positionnez votre cardiofréquencemètre comme lorsque vous pratiquez votre activité physique. Relevez la FC indiquée. Renouvelez l'opération 5 jours de suite. Calculez la moyenne des FC relevées et vous obtiendrez ainsi votre FC de repos. La FC de repos est liée à vos habitudes de vie. Elle varie en fonction de votre état de forme, votre faculté de récupération après un effort, la qualité de votre sommeil, le niveau de stress et les habitudes alimentaires."},
    {&CreerCycle::MyButton31,
     "Elle se situe entre 50 et 60% de la FCMax.\n\nL'exercice dans cette zone est conseillé pour le bien-être et la réduction du stress."},
    {&CreerCycle::MyButton32,
     "Elle se situe entre 60 et 70% de la FCMax.\n\nL'exercice dans cette zone permet d'améliorer la santé et de perdre du poids."},
    {&CreerCycle::MyButton33,
     "Elle se situe entre 85 et 100% de la FCMax.\n\n Elle est considérée comme une zone de danger et ne peut être réservée qu'aux athlètes cherchant à travailler au maximum de leurs capacités. "},
    {&CreerCycle::MyButton34,
     "La fréquence cardiaque de réserve est la différence entre la FCMax et la FC de repos.\n\nLa FC de réserve (ou FC de l'exercice) représente la zone dans laquelle la FC peut varier en fonction de l'effort physique.\n\nNous vous conseillons d'utiliser des valeurs de FCMax et de FC de repos mesurées et non théoriques pour le calcul de votre FC de réserve."},
    {&CreerCycle::MyButton35,
     "Elle se situe entre 70 et 85% de la FCMax.\n\nL'exercice dans cette zone permet d'améliorer la performance du muscle cardiaque.\n\nElle est réservée aux personnes s'entraînant régulièrement."},
    {&CreerCycle::MyButton36,
     "La Fréquence Cardiaque de Travail Correspondra à l'éffort visé à atteindre ou à ne pas Dépasser.\n\nEn tout cas elle vous donnera les Limites pour vos Entraînements..."},
    {&CreerCycle::MyButton37,
     "Selon la Formule que vous Choisirez...\n\nLa Variation des Résultats correspondra peut-être ou sûrement à vos besoins pour vos Séances d'Entraînements...\n\nLa Méthode Perso vous permet de Mettre vos Paramètres Personnels, ainsi vos Séances d'Entraînements en Tiendront Compte...\n\nDès le Démarrage du Programme c'est cette Configuration qui vous sera proposée en premier choix..."},
    {&CreerCycle::MyButton39,
     "Vous êtes dans le Module de Calculs Intéractifs qui vous donnera  les Marges et les Fréquences Cardiaques en Fonction des Paramètres que vous Choisirez.\n\nMais ATTENTION, ce Module est Réservé aux Utilisateurs Avertis étant suivis par un Coatch ou un Service Médical...\n\nIl doit-être Manipulé avec Soin et Rigueur et sérieux, ne faites pas n'importe quoi, car votre Santé n'a pas de Prix..."},
    {&CreerCycle::MyButton42,
     "L'Affichage de ces Infos se feront que si vous avez Déterminé leurs Pourcentages en Fonction du Choix des Formules de Calculs pour la (Fréquence Cardiaque de Travail), correspondantes aux Séquences Individuelles dans vos Séances d'Entraînement...\n\nColonne de Droite dans la Liste Principale de vos créations ou Modifications des Séances d'Entraînements..."},
}};

// The help of the two hidden lines, shown on hover.
constexpr std::array<HelpText, 2> hoverTexts{{
    {&CreerCycle::MyButton27,
     "La fréquence cardiaque de récupération est calculée en observant la baisse de fréquence cardiaque sur une période donnée, par exemple sur une minute après une séance d'exercice."},
    {&CreerCycle::MyButton29,
     "La fréquence cardiaque moyenne (bpm) représente la valeur moyenne des battements cardiaques relevés sur une période donnée."},
}};

// The text or, where it is empty, the picture in its place: never both.
void showHelp(CreerCycle& form, const char* text) {
  const bool helps = *text != '\0';
  form.Image11.visible = !helps;
  form.Label47.visible = helps;
  form.Shape2.visible = helps;
  form.Label44.caption = text;
}

}  // namespace

void hideHelp(CreerCycle& form) {
  showHelp(form, "");
}

void attachHelp(CreerCycle& form) {
  for (const HelpText& help : texts) {
    (form.*help.button).click.handle([&form, text = help.text] { showHelp(form, text); });
  }
  for (const HelpText& help : hoverTexts) {
    (form.*help.button).hover.handle([&form, text = help.text] { form.Label44.caption = text; });
  }
  for (platform::Control* ground : std::initializer_list<platform::Control*>{&form.Image10, &form.Picture8}) {
    ground->hover.handle([&form] { hideHelp(form); });
  }
}

}  // namespace heartrate
