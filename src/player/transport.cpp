#include "player/transport.h"

#include <array>

#include "forms/lect_mci_words.h"
#include "model/numbers.h"
#include "platform/each_on_its_own.h"
#include "platform/text.h"
#include "player/media_identification.h"

namespace player {
namespace {

constexpr const char* playing = "||";
constexpr const char* held = "|>";

std::string selectedName(const platform::FileList& list) {
  const int index = list.index;
  const bool picked = index >= 0 && index < static_cast<int>(list.lines().size());
  return picked ? list.lines()[static_cast<std::size_t>(index)] : std::string();
}

}  // namespace

Transport::Transport(const context::Context& context, Medium& medium, Bars& bars, Placement& placement)
    : context_(context),
      player_(context.screens.player),
      announcements_(context.screens.announcements),
      medium_(medium),
      bars_(bars),
      placement_(placement) {
  attachButtons();
  attachTimers();
  player_.onUnload.handle([this] { player_.Command2.click(); });
}

void Transport::attachButtons() {
  player_.Command8.click.handle([this] { lire(); });
  player_.Command2.click.handle([this] { arreter(); });
  player_.Command3.click.handle([this] { precedent(); });
  player_.Command4.click.handle([this] { suivant(); });
  player_.Command5.click.handle([this] {
    if (!medium_.chargé) return;
    (medium_.enPause ? player_.Timer7 : player_.Timer8).enabled = false;
    medium_.enPause ? reprendre() : suspendre();
  });
  player_.Picture1.click.handle([this] { player_.Command5.click(); });
  player_.Command9.click.handle([this] { player_.Timer7.enabled = true; });
  player_.Command10.click.handle([this] { player_.Timer8.enabled = true; });
  player_.File1.doubleClick.handle([this] { lireSelection(); });
  player_.Check1.click.handle([this] { appliquerSon(); });
  for (std::size_t i = 0; i < player_.CMspeed.size(); ++i) {
    player_.CMspeed[i].click.handle([this, i] { appliquerVitesse(static_cast<int>(i)); });
  }
}

void Transport::attachTimers() {
  // Orders from other screens: each leaves the caller's handler and becomes a press in an event of its own.
  platform::once(player_.Timer2, [this] { player_.Command8.click(); });
  platform::once(player_.Timer3, [this] { player_.Command2.click(); });
  platform::once(player_.Timer4, [this] { player_.Command5.click(); });
  platform::once(player_.Timer5, [this] { player_.Command3.click(); });
  platform::once(player_.Timer6, [this] { player_.Command4.click(); });
  platform::once(player_.Timer7, [this] {
    if (medium_.chargé) reprendre();
  });
  platform::once(player_.Timer8, [this] {
    if (medium_.chargé) suspendre();
  });
  player_.Timer1.tick.handle([this] { platform::eachOnItsOwn([this] { suivrePosition(); }); });
  player_.Timer9.tick.handle([this] { obeirALaSeance(); });
}

void Transport::ouvrir(const std::string& path) {
  const std::string name = selectedName(player_.File1);
  announcements_.Label1.caption = name;
  player_.Label1.caption = "Chargement de " + name;
  context_.loop.serveEvents();
  if (ItIsAPic(path)) {
    placement_.montrerImage(path);
    return;
  }
  placement_.cacherImage();
  // Parent 0: there is no window to draw in.
  medium_.sendWhole("open MPEGVideo!" + path + " alias " + medium_.alias + " parent 0 Style 1073741824");
  context_.loop.serveEvents();
  identifier(path);
  placement_.placerVideo();
  medium_.send("play", " from 0");
  medium_.chargé = true;
  medium_.enPause = false;
  appliquerSon();
  montrerDuree();
}

void Transport::identifier(const std::string& path) {
  const Identification found =
      identifierMedia(context_.outside.files, path, [this] { return medium_.send("where", " destination"); });
  medium_.largeurMedia = found.largeurMedia;
  medium_.hauteurMedia = found.hauteurMedia;
  medium_.infoMedia = found.infoMedia;
}

void Transport::montrerDuree() {
  medium_.send("set", " time format milliseconds");
  medium_.longueur = model::lenientInteger(medium_.send("status", " length"));
  bars_.viderProgression();
  context_.state.music = {context_.state.music.get().position, medium_.longueur};
  const std::string duree = formatTemps(medium_.longueur);
  player_.Label1.caption = duree;
  announcements_.Label7.caption = duree;
  context_.state.dureeMusique = duree;
}

void Transport::montrerPosition(std::int64_t milliseconds) {
  context_.state.music = {milliseconds, context_.state.music.get().length};
  player_.Label2.caption = formatTemps(milliseconds);
  announcements_.Label5.caption = player_.Label2.caption;
}

void Transport::lire() {
  player_.Command2.click();
  const std::string path = platform::trim(player_.Text1.text.get());
  if (!path.empty() && context_.outside.files.exists(path)) {
    ouvrir(path);
    return;
  }
  context_.outside.dialogs.message({platform::MessageKind::Information, platform::MessageButtons::Ok,
                                    "Ventoria", "Aucune Musique d'Ambiance Sélectionnée..."});
}

void Transport::stopAndClose() {
  medium_.chargé = false;
  medium_.send("stop");
  medium_.send("close");
}

void Transport::arreter() {
  if (medium_.chargé) {
    stopAndClose();
    bars_.viderProgression();
    montrerPosition(0);
  }
  placement_.viderImage();
}

void Transport::lireSelection() {
  const std::string name = selectedName(player_.File1);
  if (!name.empty()) {
    if (medium_.chargé) stopAndClose();
    std::string folder = player_.File1.path;
    if (!folder.ends_with('/')) folder += '/';
    announcements_.Label6.caption = name;
    ouvrir(folder + name);
  }
  if (announcements_.visible) announcements_.Command12.enabled = false;
}

void Transport::precedent() {
  if (player_.File1.index < 1) return;
  player_.File1.index = player_.File1.index - 1;
  player_.File1.doubleClick();
}

void Transport::suivant() {
  const int rows = static_cast<int>(player_.File1.lines().size());
  if (rows == 0) return;
  player_.File1.index = player_.File1.index < rows - 1 ? player_.File1.index + 1 : 0;
  player_.File1.doubleClick();
}

void Transport::reprendre() {
  medium_.send("play");
  player_.Command5.caption = playing;
  medium_.enPause = false;
}

void Transport::suspendre() {
  medium_.send("stop");
  player_.Command5.caption = held;
  medium_.enPause = true;
}

void Transport::appliquerSon() {
  if (!medium_.chargé || player_.Check1.value == 2) return;
  medium_.send("set", forms::soundOff(player_) ? " audio all off" : " audio all on");
}

void Transport::appliquerVitesse(int index) {
  static constexpr std::array<const char*, 3> speeds{" speed 500", " speed 1000", " speed 2000"};
  if (medium_.chargé && !medium_.enPause) medium_.send("set", speeds[static_cast<std::size_t>(index)]);
}

void Transport::suivrePosition() {
  if (!medium_.chargé) return player_.Timer1.rest({&medium_.chargé});
  const int position = model::lenientInteger(medium_.send("status", " position notify"));
  montrerPosition(position);
  bars_.peindreProgression(position);
  // A selection chooses the next piece by itself; without one the player goes through its own list.
  if (position == medium_.longueur && context_.state.selectionEnCours.empty()) player_.Command4.click();
}

void Transport::obeirALaSeance() {
  platform::Variable<std::string>& order = context_.state.musiqueSuit;
  if (order == "oui") reprendre();
  if (order == "non") suspendre();
  if (order == "oui" || order == "non") order = "";
  player_.Timer9.rest({&order});
}

}  // namespace player
