#include "capture/stored_announcements.h"

#include "model/numbers.h"
#include "platform/each_on_its_own.h"
#include "platform/text.h"

namespace capture {
namespace {

constexpr const char* nothingOpened = "Lire une Annonce Enregistrée";

std::string padded(long long value, std::size_t digits) {
  std::string text = std::to_string(value);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

// hh:mm:ss.mmm
std::string formatTemps(double milliseconds) {
  const auto ms = static_cast<long long>(milliseconds);
  return padded(ms / 3600000, 2) + ":" + padded(ms / 60000 % 60, 2) + ":" + padded(ms / 1000 % 60, 2) + "." +
         padded(ms % 1000, 3);
}

void enable(std::initializer_list<platform::Button*> buttons, bool on) {
  for (platform::Button* button : buttons) button->enabled = on;
}

const std::string alias = aliasVideo;

}  // namespace

StoredAnnouncements::StoredAnnouncements(const context::Context& context)
    : context_(context), form_(context.screens.announcements) {
  form_.Command6.click.handle([this] { ouvrir(); });
  form_.Command7.click.handle([this] { play(); });
  form_.Command15.click.handle([this] { pause(); });
  form_.Command14.click.handle([this] { stop(); });
  form_.MyButton5.click.handle([this] { replay(); });
  form_.MyButton8.click.handle([this] { destroy(); });
  form_.Timer9.tick.handle([this] { follow(); });
}

void StoredAnnouncements::makeReady() {
  form_.Timer9.enabled = false;
  form_.MyButton8.enabled = false;
  form_.Label9.caption = nothingOpened;
  form_.Label15.caption = "";
}

void StoredAnnouncements::ouvrir() {
  const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
      {platform::FilePurpose::Open, "Ouvrir", context_.state.dossierAnnonces,
       "Annonces Enregistrées |*.wav|Musiques mp3|*.mp3", ""});
  if (chosen.empty() || chosen.front().empty()) return;
  const std::string& path = chosen.front();
  const std::string name = path.substr(path.rfind('/') + 1);
  form_.Label15.caption = path;
  const std::size_t characters = platform::length(name);
  form_.Label9.caption = "(" + platform::left(name, characters < 4 ? 0 : characters - 4) + ")";
  if (context_.outside.files.exists(path)) {
    send("stop " + alias);
    send("close " + alias);
    if (!lireAnnonce()) tellWhyNot(path);
  }
  form_.VScroll1.focus();
  form_.Command7.enabled = false;
  enable({&form_.Command14, &form_.MyButton8}, true);
}

// The player does not say what it misses: the disk does, or else it is the file's own fault.
void StoredAnnouncements::tellWhyNot(const std::string& path) {
  std::string title = "ERR #75";
  std::string text;
  try {
    context_.outside.files.open(path, platform::OpenMode::Read);
    title = "Erreur de Format ou Fichier Endommagé...";
    text = platform::FileFault("de lire", path, "ce n'est pas un son connu").what() +
           std::string(
               "\n\n\tCe fichier semble être endommagé, ou ne correspond pas aux Types de Fichiers que ce "
               "programme peut Lire...!");
  } catch (const platform::Fault& fault) {
    text = fault.what();
  }
  context_.outside.dialogs.message(
      {platform::MessageKind::Exclamation, platform::MessageButtons::Ok, title, text});
}

bool StoredAnnouncements::lireAnnonce() {
  send("open MPEGVideo!" + form_.Label15.caption.get() + " alias " + alias + " parent 0 Style 1073741824");
  context_.loop.serveEvents();
  send("play " + alias + " from 0");
  send("set " + alias + " time format milliseconds");
  const std::string length = send("status " + alias + " length");
  form_.Label16.visible = true;
  form_.Label17.visible = true;
  form_.Label16.caption = formatTemps(model::lenientNumber(length));
  form_.Timer9.enabled = true;
  return !length.empty();
}

// Positions are compared as texts of one width.
void StoredAnnouncements::follow() {
  const std::string& length = form_.Label16.caption;
  form_.Label17.caption = formatTemps(model::lenientNumber(send("status " + alias + " position notify")));
  const std::string& position = form_.Label17.caption;
  form_.Command14.enabled = position < length;
  if (position > length) form_.Label17.caption = length;
  if (position != length) return;
  form_.Timer9.enabled = false;
  form_.MyButton5.enabled = true;
}

void StoredAnnouncements::play() {
  form_.Command7.enabled = false;
  enable({&form_.Command15, &form_.Command14, &form_.MyButton5, &form_.MyButton6}, true);
  send("play " + alias);
  form_.VScroll1.focus();
}

void StoredAnnouncements::pause() {
  send("pause " + alias);
  enable({&form_.Command7, &form_.Command14, &form_.MyButton5, &form_.MyButton6}, true);
  form_.Command15.enabled = false;
}

void StoredAnnouncements::stop() {
  send("stop " + alias);
  send("close " + alias);
  form_.Timer9.enabled = false;
  enable({&form_.Command7, &form_.Command15, &form_.Command14}, false);
  enable({&form_.MyButton5, &form_.MyButton6}, true);
  form_.Label16.caption = "";
  form_.Label17.caption = "";
}

void StoredAnnouncements::replay() {
  form_.Command7.enabled = false;
  enable({&form_.Command15, &form_.Command14}, true);
  lireAnnonce();
}

// The file goes before the player lets go of it, and nobody is asked.
void StoredAnnouncements::destroy() {
  enable({&form_.Command7, &form_.Command14, &form_.MyButton8}, false);
  const std::string annonceADetruire = form_.Label15.caption;
  platform::eachOnItsOwn([&] {
    if (context_.outside.files.exists(annonceADetruire)) context_.outside.files.remove(annonceADetruire);
  });
  form_.Label16.caption = "0";
  form_.Label17.caption = "0";
  form_.Command14.click();
  form_.MyButton5.enabled = false;
  form_.Label9.caption = nothingOpened;
}

}  // namespace capture
