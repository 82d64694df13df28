#include "player/player.h"

#include <array>
#include <random>

#include "platform/each_on_its_own.h"
#include "player/measures.h"

namespace player {
namespace {

// A name that hardly any other open device will have.
std::string newAlias(const platform::Clock& clock) {
  constexpr unsigned names = 100;
  std::minstd_rand random(static_cast<unsigned>(clock.localTime().time_since_epoch().count()));
  return "Aform" + std::to_string(random() % names);
}

}  // namespace

Player::Player(const context::Context& context)
    : context_(context),
      player_(context.screens.player),
      medium_(context.outside.media),
      bars_(player_, context.loop, medium_),
      placement_(player_, medium_),
      transport_(context, medium_, bars_, placement_),
      fourcc_(context.outside.files, context.outside.dialogs) {
  attachList();
  player_.onLoad.handle([this] { medium_.alias = newAlias(context_.outside.clock); });
  player_.resized.handle([this](int twips) { suivreLargeur(twips); });
  player_.Command1.click.handle([this] { choisirDossier(); });
  player_.Label1.doubleClick.handle([this] { fourcc_.montrerFourcc(player_.Label1.caption); });
}

void Player::attachList() {
  struct Key {
    const char* name;
    const char* pattern;
  };
  static constexpr std::array<Key, 3> patterns{{
      {"F10",
       "*.mp3;*.mp2;*.mp1;*.wav;*.asx;*.rm;*.ra;*.mid;*.rmi;*.xmi;*.avi;*.mpg;*.mpeg;*.asf;*.wmv;*.mov;*.mpe;*.pls;*.dat;*.vcd;*.voc;*.au;*.wma;*.part"},
      {"F8", "*.bmp;*.dib;*.gif;*.jpg;*.jpe;*.jpeg;*.ico;*.cur;*.wmf;*.emf"},
      {"F9", "*.avi;*.mpg;*.mpeg;*.asf;*.wmv;*.mov;*.mpe"},
  }};
  player_.File1.key.handle([this](const std::string& pressed) {
    if (pressed == "Enter") player_.File1.doubleClick();
    if (pressed == "F5") player_.File1.refresh();
    for (const Key& key : patterns) {
      if (pressed == key.name) player_.File1.pattern = key.pattern;
    }
  });
}

void Player::choisirDossier() {
  const std::vector<std::string> chosen = context_.outside.dialogs.chooseFiles(
      {platform::FilePurpose::Folder, "Dossier contenant des vidéos", {}, {}, {}});
  if (chosen.empty()) return;
  player_.File1.path = chosen.front();
  player_.caption = "Navigation dans " + chosen.front();
}

void Player::suivreLargeur(int twips) {
  platform::eachOnItsOwn(
      [&] {
        if (twips == largeurForme_) return;
        player_.Picture1.width = boxWidth;
        player_.PicProgress.width = boxWidth;
        bars_.viderProgression();
      },
      [&] { placement_.placerVideo(); }, [&] { placement_.dimensionnerImage(); });
  largeurForme_ = twips;
}

}  // namespace player
