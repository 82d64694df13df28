#include "capture/page.h"

namespace capture {

Page::Page(const voice::Toolbox& tools, std::string documentsFolder)
    : tools_(tools),
      form_(tools.screens.announcements),
      list_(tools, selection_),
      import_(tools, list_, selection_, std::move(documentsFolder)),
      deletion_(tools, list_, selection_),
      player_(tools, list_, selection_),
      transport_(tools),
      ambience_(tools, selection_),
      recorder_(tools),
      figures_(tools),
      saving_(tools),
      stored_(tools),
      level_(tools),
      info_(tools) {
  form_.onLoad.handle([this] { load(); });
  form_.onUnload.handle([this] { tools_.outside.media.send("close capture"); });
}

// The page may be loaded anew after the rider left it with an empty list: it starts as it first did.
void Page::load() {
  const std::string library = tools_.state.dossierProgramme + "ambiances/";
  form_.File1.path = library;
  list_.readLibrary();
  for (platform::Timer* timer : {&form_.Timer12, &form_.Timer13, &form_.Timer14}) timer->enabled = false;
  for (platform::Timer* timer : {&form_.Timer2, &form_.Timer4}) timer->enabled = true;
  form_.MyFrame4.visible = false;
  form_.MyFrame5.visible = false;
  level_.makeReady();
  recorder_.makeReady();
  stored_.makeReady();
  tools_.screens.player.load();
  tools_.screens.player.File1.path = library;
}

}  // namespace capture
