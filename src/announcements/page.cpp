#include "announcements/page.h"

#include "forms/music_buttons.h"

namespace announcements {

Page::Page(const context::Context& context, voice::Voice& voice)
    : context_(context),
      page_(context.screens.announcements),
      recorder_(context, voice),
      figures_(context),
      saving_(context),
      stored_(context),
      level_(context),
      info_(context) {
  context_.screens.main.mnEnrAnnVocale.click.handle([this] { open(); });
  page_.onUnload.handle([this] { context_.outside.media.send("close capture"); });
}

void Page::makeReady() {
  page_.MyFrame4.visible = false;
  level_.makeReady();
  recorder_.makeReady();
  stored_.makeReady();
}

// Music would be recorded with the voice, so it stops.
void Page::open() {
  forms::MainForm& main = context_.screens.main;
  context_.screens.player.Timer3.enabled = true;
  forms::showMusicStopped(main);
  page_.MyFrame1.visible = false;
  main.hide();
  page_.show();
}

}  // namespace announcements
