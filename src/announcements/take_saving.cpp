#include "announcements/take_saving.h"

#include "forms/enr_une_annonce_words.h"
#include "platform/each_on_its_own.h"
#include "platform/file_copy.h"
#include "platform/text.h"

namespace announcements {
namespace {

constexpr std::string_view extension = ".wav";

}  // namespace

TakeSaving::TakeSaving(const context::Context& context)
    : context_(context), page_(context.screens.announcements) {
  page_.Command1.click.handle([this] { save(); });
}

// "Annonce du 16 11 26 à 20 31 05"
std::string TakeSaving::proposedName() const {
  const platform::LocalTime now = context_.loop.clock().localTime();
  const auto midnight = std::chrono::floor<std::chrono::days>(now);
  const std::chrono::year_month_day day{midnight};
  const std::chrono::hh_mm_ss time{now - midnight};
  const auto twoDigits = [](long long number) { return platform::zeroPadded(number, 2); };
  return "Annonce du " + twoDigits(unsigned{day.day()}) + " " + twoDigits(unsigned{day.month()}) + " " +
         twoDigits(int{day.year()} % 100) + " à " + twoDigits(time.hours().count()) + " " +
         twoDigits(time.minutes().count()) + " " + twoDigits(static_cast<long long>(time.seconds().count()));
}

std::string TakeSaving::pathOf(const std::string& name) const {
  return context_.state.dossierAnnonces + name + std::string(extension);
}

std::optional<std::string> TakeSaving::askName() {
  for (;;) {
    const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
        {platform::FilePurpose::Save, "Enregistrer sous", context_.state.dossierAnnonces,
         "Fichiers wav |*.wav", proposedName()});
    if (chosen.empty() || !chosen.front().ends_with(extension)) return std::nullopt;
    std::string name = chosen.front().substr(chosen.front().rfind('/') + 1);
    name.resize(name.size() - extension.size());
    if (name.empty()) return std::nullopt;
    // Whatever folder the rider chose, the take is saved in the announcements' folder and may replace one
    // there.
    if (!context_.outside.files.exists(pathOf(name))) return name;
    const platform::Answer answer = context_.outside.dialogs.message(
        {platform::MessageKind::Exclamation, platform::MessageButtons::OkCancel,
         "Contrôle Existance Fichier...",
         "Cette Annonce (" + name +
             ") éxiste Déjà...!\nConfirmez son Remplacement en Cliquant sur (OK)\n"
             "ou, Rebaptisez-la en Cliquant sur (Annuler)...!"});
    if (answer == platform::Answer::Ok) return name;
  }
}

// The recorder does not tell whether it saved. So its last scratch file is removed first: a new one proves
// it.
bool TakeSaving::write(const std::string& name) {
  const std::string& folder = context_.state.dossierAnnonces;
  platform::FileSystem& files = context_.outside.files;
  bool written = false;
  platform::eachOnItsOwn([&] {
    if (files.exists(folder + "tma")) files.remove(folder + "tma");
    context_.outside.media.workIn(folder);
    context_.outside.media.send("save capture tma");
    written = platform::copyFile(files, folder + "tma", pathOf(name));
  });
  return written;
}

void TakeSaving::save() {
  const std::optional<std::string> name = askName();
  if (!name) return;
  if (!write(*name)) {
    page_.Label14.caption = "(" + *name + ") n'a pas pu être écrite sur le Disque";
    return;
  }
  for (platform::Button* button : {&page_.Command2, &page_.MyButton10, &page_.Command4})
    button->enabled = true;
  page_.Command3.enabled = false;
  page_.Command1.enabled = false;
  page_.Label1.caption = forms::readyToRecord;
  context_.state.take.file = pathOf(*name);
  page_.Label14.caption = "(" + *name + ")Enregistrée";
}

}  // namespace announcements
