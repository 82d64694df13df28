#include "music/music_import.h"

#include "platform/file_copy.h"

namespace music {

MusicImport::MusicImport(const context::Context& context, SelectionList& list, Selection& selection,
                         std::string documentsFolder)
    : context_(context),
      library_(context.screens.announcements),
      list_(list),
      selection_(selection),
      documentsFolder_(std::move(documentsFolder)) {
  library_.MyButton4.click.handle([this] { importer(); });
  library_.MyButton16.click.handle([this] { givenUp_ = true; });
}

void MusicImport::importer() {
  library_.MyButton13.click();
  const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
      {platform::FilePurpose::OpenSeveral, "Importer une Musique", documentsFolder_,
       "Fichiers (Musiques) mp3|*.mp3|Musiques wma|*.wma", ""});
  if (chosen.empty()) return;
  library_.MyButton4.enabled = false;  // events are served while it copies
  failed_.clear();
  copyAll(chosen);
  rebuild();
  if (!failed_.empty()) throw platform::Fault("Musiques non copiées : " + failed_ + ".\n\n" + why_);
}

void MusicImport::rebuild() {
  library_.MyFrame6.visible = false;
  library_.MyButton4.enabled = true;
  selection_.listeChargee = "";
  library_.Command8.click();
  list_.readLibrary();
}

void MusicImport::copyAll(const std::vector<std::string>& chosen) {
  nbFichiersChoisis_ = chosen.size();
  givenUp_ = false;
  for (copied_ = 0; copied_ < chosen.size() && !givenUp_; ++copied_) {
    const std::string& from = chosen[copied_];
    const std::string name = from.substr(from.rfind('/') + 1);
    const std::string to = list_.pathOf(name);
    if (!context_.outside.files.exists(to)) {
      try {
        copyOne(from, to, name);
      } catch (const platform::Fault& fault) {  // the others may go well
        if (failed_.empty()) why_ = fault.what();
        failed_ += (failed_.empty() ? "" : ", ") + name;
      }
      continue;
    }
    context_.outside.dialogs.message(
        {platform::MessageKind::Information, platform::MessageButtons::Ok, "Impossible de copier...",
         "Cette Musique (" + name + ") est déjà présente dans votre Bibliothèque..."});
  }
}

void MusicImport::copyOne(const std::string& from, const std::string& to, const std::string& name) {
  library_.Label27.caption = "Copie de (" + name + ")";
  library_.MyFrame6.visible = true;
  const auto show = [this](std::uint64_t done, std::uint64_t total) {
    const std::uint64_t part = total == 0 ? 100 : done * 100 / total;
    library_.ProgressBar1.value = static_cast<int>((copied_ * 100 + part) / nbFichiersChoisis_);
    context_.loop.serveEvents();
    return !givenUp_ && !context_.loop.quitting();
  };
  if (show(0, 1)) platform::copyFile(context_.outside.files, from, to, show);
}

}  // namespace music
