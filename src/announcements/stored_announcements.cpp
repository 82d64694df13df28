#include "announcements/stored_announcements.h"

#include <algorithm>
#include <cstdint>

#include "forms/enr_une_annonce_words.h"
#include "model/numbers.h"
#include "platform/each_on_its_own.h"
#include "platform/text.h"

namespace announcements {
namespace {

// hh:mm:ss.mmm
std::string formatTemps(std::int64_t ms) {
  return platform::zeroPadded(ms / 3600000, 2) + ":" + platform::zeroPadded(ms / 60000 % 60, 2) + ":" +
         platform::zeroPadded(ms / 1000 % 60, 2) + "." + platform::zeroPadded(ms % 1000, 3);
}

std::int64_t wholeNumber(const std::string& text) {
  return static_cast<std::int64_t>(model::lenientNumber(text));
}

void enable(std::initializer_list<platform::Button*> buttons, bool on) {
  for (platform::Button* button : buttons) button->enabled = on;
}

const std::string alias = "video001";  // the name of this page's player in the commands

}  // namespace

StoredAnnouncements::StoredAnnouncements(const context::Context& context)
    : context_(context), page_(context.screens.announcements), sound_(context.state.announcement) {
  page_.Command6.click.handle([this] { ouvrir(); });
  page_.Command7.click.handle([this] { play(); });
  page_.Command15.click.handle([this] { pause(); });
  page_.Command14.click.handle([this] { stop(); });
  page_.MyButton5.click.handle([this] { replay(); });
  page_.MyButton8.click.handle([this] { destroy(); });
  page_.Timer9.tick.handle([this] { follow(); });
}

void StoredAnnouncements::makeReady() {
  page_.Timer9.enabled = false;
  page_.MyButton8.enabled = false;
  page_.Label9.caption = forms::noAnnouncementOpen;
  page_.Label15.caption = "";
}

void StoredAnnouncements::ouvrir() {
  const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
      {platform::FilePurpose::Open, "Ouvrir", context_.state.dossierAnnonces,
       "Annonces Enregistrées |*.wav|Musiques mp3|*.mp3", ""});
  if (chosen.empty() || chosen.front().empty()) return;
  const std::string& path = chosen.front();
  const std::string name = path.substr(path.rfind('/') + 1);
  page_.Label15.caption = path;
  const std::size_t characters = platform::length(name);
  page_.Label9.caption = "(" + platform::left(name, characters < 4 ? 0 : characters - 4) + ")";
  if (context_.outside.files.exists(path)) {
    send("stop " + alias);
    send("close " + alias);
    if (!lireAnnonce()) showOpenFailure(path);
  }
  page_.VScroll1.focus();
  page_.Command7.enabled = false;
  enable({&page_.Command14, &page_.MyButton8}, true);
}

// The player gives no reason: either the disk does, or the file is no sound.
void StoredAnnouncements::showOpenFailure(const std::string& path) {
  std::string title = "ERR #75";
  std::string text;
  try {
    static_cast<void>(context_.outside.files.open(path, platform::OpenMode::Read));
    title = "Erreur de Format ou Fichier Endommagé...";
    text =
        platform::FileFault("de lire", path, "ce n'est pas un son connu").what() +
        std::string(
            "\n\n\tCe fichier semble être endommagé, ou ne correspond pas aux Types de Fichiers que ce programme peut Lire...!");
  } catch (const platform::Fault& fault) {
    text = fault.what();
  }
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, title, text});
}

bool StoredAnnouncements::lireAnnonce() {
  send("open MPEGVideo!" + page_.Label15.caption.get() + " alias " + alias + " parent 0 Style 1073741824");
  context_.loop.serveEvents();
  send("play " + alias + " from 0");
  send("set " + alias + " time format milliseconds");
  const std::string length = send("status " + alias + " length");
  sound_.length = wholeNumber(length);
  page_.Label16.visible = true;
  page_.Label17.visible = true;
  page_.Label16.caption = formatTemps(sound_.length);
  page_.Timer9.enabled = true;
  return !length.empty();
}

void StoredAnnouncements::follow() {
  sound_.position = std::min(wholeNumber(send("status " + alias + " position notify")), sound_.length);
  page_.Label17.caption = formatTemps(sound_.position);
  const bool goesOn = sound_.position < sound_.length;
  page_.Command14.enabled = goesOn;
  if (goesOn) return;
  page_.Timer9.enabled = false;
  page_.MyButton5.enabled = true;
}

void StoredAnnouncements::play() {
  page_.Command7.enabled = false;
  enable({&page_.Command15, &page_.Command14, &page_.MyButton5, &page_.MyButton6}, true);
  send("play " + alias);
  page_.VScroll1.focus();
}

void StoredAnnouncements::pause() {
  send("pause " + alias);
  enable({&page_.Command7, &page_.Command14, &page_.MyButton5, &page_.MyButton6}, true);
  page_.Command15.enabled = false;
}

void StoredAnnouncements::stop() {
  send("stop " + alias);
  send("close " + alias);
  page_.Timer9.enabled = false;
  enable({&page_.Command7, &page_.Command15, &page_.Command14}, false);
  enable({&page_.MyButton5, &page_.MyButton6}, true);
  sound_ = {};
  page_.Label16.caption = "";
  page_.Label17.caption = "";
}

void StoredAnnouncements::replay() {
  page_.Command7.enabled = false;
  enable({&page_.Command15, &page_.Command14}, true);
  lireAnnonce();
}

// Removes the file while the player still has it open, and does not ask the rider.
void StoredAnnouncements::destroy() {
  enable({&page_.Command7, &page_.Command14, &page_.MyButton8}, false);
  const std::string annonceADetruire = page_.Label15.caption;
  platform::eachOnItsOwn([&] {
    if (context_.outside.files.exists(annonceADetruire)) context_.outside.files.remove(annonceADetruire);
  });
  page_.Label16.caption = "0";
  page_.Label17.caption = "0";
  page_.Command14.click();
  page_.MyButton5.enabled = false;
  page_.Label9.caption = forms::noAnnouncementOpen;
}

}  // namespace announcements
