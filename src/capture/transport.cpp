#include "capture/transport.h"

#include "capture/selection.h"
#include "model/numbers.h"

namespace capture {

Transport::Transport(const context::Context& context)
    : form_(context.screens.announcements), player_(context.screens.player), volume_(context.screens.volume) {
  form_.Command10.click.handle([this] { lire(); });
  form_.Command9.click.handle([this] {
    form_.Command9.enabled = false;
    player_.Timer4.enabled = true;
  });
  form_.Command11.click.handle([this] {
    player_.Timer3.enabled = true;
    form_.Command9.enabled = false;
    form_.Command12.click();
  });
  form_.Command12.click.handle([this] {
    player_.Timer5.enabled = true;
    showLength();
    form_.Command9.enabled = true;
  });
  form_.Command13.click.handle([this] {
    player_.Timer6.enabled = true;
    showLength();
    form_.Command13.enabled = false;
    form_.Command9.enabled = false;
  });
  form_.VScroll2.change.handle([this] { volumeMoved(); });
  form_.VScroll2.scroll.handle([this] { volumeMoved(); });
}

void Transport::lire() {
  form_.Command10.enabled = false;
  player_.Timer2.enabled = true;
  if (form_.Label6.caption != noMusicChosen) {
    if (form_.VScroll1.value < 3) form_.VScroll1.value = 2;
    form_.Timer4.enabled = true;
  }
  form_.Command9.enabled = true;
}

void Transport::showLength() {
  form_.Label5.caption = player_.Label1.caption;
}

// One bar for both: the machine's volume and the player's own.
void Transport::volumeMoved() {
  player_.VScroll1.value = form_.VScroll2.value;
  form_.Label24.caption = "Volume " + model::plainNumber(form_.VScroll2.value / 10.0);
  volume_.VScroll1.value = form_.VScroll2.value;
}

}  // namespace capture
