#include "music/transport.h"

#include "forms/enr_une_annonce_words.h"
#include "model/numbers.h"

namespace music {

Transport::Transport(const context::Context& context)
    : library_(context.screens.announcements),
      player_(context.screens.player),
      volume_(context.screens.volume),
      music_(context.state.music) {
  library_.Command10.click.handle([this] { lire(); });
  library_.Command9.click.handle([this] {
    library_.Command9.enabled = false;
    player_.Timer4.enabled = true;
  });
  library_.Command11.click.handle([this] {
    player_.Timer3.enabled = true;
    library_.Command9.enabled = false;
    library_.Command12.click();
  });
  library_.Command12.click.handle([this] {
    player_.Timer5.enabled = true;
    showLength();
    library_.Command9.enabled = true;
  });
  library_.Command13.click.handle([this] {
    player_.Timer6.enabled = true;
    showLength();
    library_.Command13.enabled = false;
    library_.Command9.enabled = false;
  });
  library_.VScroll2.change.handle([this] { volumeMoved(); });
  library_.VScroll2.scroll.handle([this] { volumeMoved(); });
}

void Transport::lire() {
  library_.Command10.enabled = false;
  player_.Timer2.enabled = true;
  if (forms::musicChosen(library_)) {
    if (library_.VScroll1.value < 3) library_.VScroll1.value = 2;
    library_.Timer4.enabled = true;
  }
  library_.Command9.enabled = true;
}

void Transport::showLength() {
  library_.Label5.caption = player_.Label1.caption;
  music_ = {music_.get().length, music_.get().length};
}

// One bar for both: the machine's volume and the player's own.
void Transport::volumeMoved() {
  player_.VScroll1.value = library_.VScroll2.value;
  library_.Label24.caption = "Volume " + model::plainNumber(library_.VScroll2.value / 10.0);
  volume_.VScroll1.value = library_.VScroll2.value;
}

}  // namespace music
