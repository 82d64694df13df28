#include "editor/session_files.h"

#include "editor/layout.h"
#include "forms/creer_cycle_words.h"
#include "model/grid_rows.h"
#include "platform/fault.h"
#include "platform/text.h"

namespace editor {
namespace {

constexpr const char* sessionFilter = "Fichiers (Séances)|*.tq2";

// "hh mm ss"
std::string timeOfDay(const platform::Clock& clock) {
  const platform::LocalTime now = clock.localTime();
  const std::chrono::hh_mm_ss parts{now - std::chrono::floor<std::chrono::days>(now)};
  return platform::zeroPadded(parts.hours().count(), 2) + " " +
         platform::zeroPadded(parts.minutes().count(), 2) + " " +
         platform::zeroPadded(static_cast<long long>(parts.seconds().count()), 2);
}

}  // namespace

SessionFiles::SessionFiles(const context::Context& context, voice::Voice& voice, Lines& lines, Drafts& drafts)
    : context_(context),
      voice_(voice),
      lines_(lines),
      drafts_(drafts),
      editor_(context.screens.editor),
      main_(context.screens.main),
      state_(context.state) {
  editor_.MyButton4.click.handle([this] { addByCaption(); });
  editor_.Command5.click.handle([this] {
    editor_.Command1.click();
    addByCaption();
  });
  editor_.Command6.click.handle([this] { enregistrerListe(); });
  editor_.sessionHandedIn.handle([this](const std::string& path) {
    prepareAddition();
    add(path);
  });
}

void SessionFiles::addByCaption() {
  if (forms::addsSessions(editor_)) {
    ajouterUneSeance();
  } else {
    lines_.ajouterSequenceVariante();
  }
}

void SessionFiles::prepareAddition() {
  lines_.preambule();
  recalerColonnes(editor_);
  editor_.Label7.caption = "00:00:00";
}

void SessionFiles::ajouterUneSeance() {
  prepareAddition();
  const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
      {platform::FilePurpose::Open, "Ouvrir", state_.dossierSeances, sessionFilter, ""});
  if (chosen.empty() || chosen.front().empty()) return;
  add(chosen.front());
}

void SessionFiles::add(const std::string& chosen) {
  const std::optional<std::string> name = model::sessionName(chosen);
  if (!name) return;
  state_.seanceTitre = *name;
  editor_.Label8.caption = "Dernière Séance Ajoutée (" + *name + ")";
  // The duration is that of the last hand-over, not of what is being added.
  main_.MyFrame1.caption =
      "Ventoria avec (" + *name + ") (Durée : " + model::formatTime(state_.dureeTotale) + ")";
  const std::optional<std::string> path = presentVersion(chosen);
  if (!path) return;
  const bool alone = drafts_.listIsNew();
  const model::FoundSequences found = model::ajouterSeance(context_.outside.files, *path, editor_.ListView1);
  if (alone) drafts_.listIsSaved();
  reportMissingRows(*path, found);
  editor_.Timer4.enabled = true;
  voice_.attendre(1);
  recalerColonnes(editor_);
  editor_.Timer4.enabled = false;
}

// The file was cut short: what it lacks stands in the list as blank rows, in red.
void SessionFiles::reportMissingRows(const std::string& path, const model::FoundSequences& sequences) {
  if (sequences.found == sequences.announced) return;
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, "Fichier Incomplet...",
       "Le Fichier (" + path + ") annonce (" + std::to_string(sequences.announced) + ") Séquence(s), mais (" +
           std::to_string(sequences.found) +
           ") seulement y ont été Trouvée(s).\nLes Lignes en (Rouge) sont Vides : Complétez-les ou Supprimez-les..."});
}

std::optional<std::string> SessionFiles::presentVersion(std::string path) {
  while (!model::lireEnTete(context_.outside.files, path).present()) {
    editor_.Timer4.enabled = false;
    const platform::Answer answer = context_.outside.dialogs.message(
        {platform::MessageKind::Exclamation, platform::MessageButtons::OkCancel,
         "Fichier non compatible avec cette Version...",
         "Ce fichier est d'une Version Antérieure, il n'est plus compatible avec la Version Actuelle du Logiciel...\n\n"
         "Je peux éssayer de le Convertir, mais il ne pourra plus être Utilisé par une Ancienne Version du "
         "Programme...\n\n"
         "Toutefois il serait préférable de le Convertir puisque le Logiciel Actuel Dispose de "
         "Fonctionnalités Supplémentaires...\n\n"
         "Acceptez-vous la Conversion Oui/Non ?"});
    if (answer != platform::Answer::Ok) return std::nullopt;
    path = model::convertirAncien(context_.outside.files, path);
  }
  return path;
}

void SessionFiles::enregistrerListe() {
  lines_.preambule();
  if (model::lastRowUnfinished(editor_.ListView1)) {
    context_.outside.dialogs.message({platform::MessageKind::Exclamation, platform::MessageButtons::Ok,
                                      "Données Manquantes...",
                                      "Vous voulez (Enregistrer), mais une Ligne n'est pas Terminée...!"});
    return;
  }
  const std::optional<std::string> path = askPath();
  if (!path) return;
  write(*path);
  drafts_.listIsSaved();
  editor_.File2.refresh();
  lines_.creerSeance();
}

std::optional<std::string> SessionFiles::askPath() {
  for (;;) {
    const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
        {platform::FilePurpose::Save, "Enregistrer sous", state_.dossierSeances, sessionFilter,
         "Séance " + timeOfDay(context_.loop.clock())});
    if (chosen.empty() || chosen.front().empty()) return std::nullopt;
    const std::string& path = chosen.front();
    if (!context_.outside.files.exists(path)) return path;
    const platform::Answer answer =
        context_.outside.dialogs.message({platform::MessageKind::Exclamation,
                                          platform::MessageButtons::OkCancel, "Contrôle Existance Fichier...",
                                          "Ce Nom de Séance (" + path +
                                              ") éxiste Déjà...!\n"
                                              "Confirmez son Remplacement en Cliquant sur (OK)\n"
                                              "ou, Changer le Répertoire de Destination...\n"
                                              "ou, Rebaptisez-le en Cliquant sur (Annuler)...!"});
    if (answer == platform::Answer::Ok) return path;
  }
}

void SessionFiles::write(const std::string& path) {
  bool replaces = false;
  try {
    replaces = context_.outside.files.exists(path);
    model::ecrireSeance(context_.outside.files, path, editor_.ListView1);
  } catch (const platform::FileFault& fault) {
    throw platform::Fault(std::string(fault.what()) +
                          (replaces ? " L'ancienne séance de ce nom est intacte." : "") +
                          " La liste est restée telle quelle : enregistrez-la sous un autre nom.");
  }
}

}  // namespace editor
