#include "capture/page.h"

namespace capture {

Page::Page(const context::Context& context, voice::Voice& voice, std::string documentsFolder)
    : context_(context),
      form_(context.screens.announcements),
      list_(context, selection_),
      import_(context, list_, selection_, std::move(documentsFolder)),
      deletion_(context, list_, selection_),
      player_(context, list_, selection_),
      transport_(context),
      ambience_(context, voice, selection_),
      recorder_(context, voice),
      figures_(context),
      saving_(context),
      stored_(context),
      level_(context),
      info_(context) {
  form_.onLoad.handle([this] { load(); });
  form_.onUnload.handle([this] { context_.outside.media.send("close capture"); });
}

// The page may be loaded anew after the rider left it with an empty list: it starts as it first did.
void Page::load() {
  const std::string library = context_.state.dossierProgramme + "ambiances/";
  form_.File1.path = library;
  list_.readLibrary();
  for (platform::Timer* timer : {&form_.Timer12, &form_.Timer13, &form_.Timer14}) timer->enabled = false;
  for (platform::Timer* timer : {&form_.Timer2, &form_.Timer4}) timer->enabled = true;
  form_.MyFrame4.visible = false;
  form_.MyFrame5.visible = false;
  level_.makeReady();
  recorder_.makeReady();
  stored_.makeReady();
  context_.screens.player.load();
  context_.screens.player.File1.path = library;
}

}  // namespace capture
