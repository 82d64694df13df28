#include "music/library.h"

namespace music {

Library::Library(const context::Context& context, voice::Voice& voice, std::string documentsFolder)
    : context_(context),
      library_(context.screens.announcements),
      list_(context, selection_),
      import_(context, list_, selection_, std::move(documentsFolder)),
      deletion_(context, list_, selection_),
      selectionPlayer_(context, list_, selection_),
      transport_(context),
      menuOrders_(context, voice, selection_) {}

void Library::makeReady() {
  const std::string folder = context_.state.dossierProgramme + "ambiances/";
  library_.File1.path = folder;
  list_.readLibrary();
  for (platform::Timer* timer : {&library_.Timer12, &library_.Timer13, &library_.Timer14})
    timer->enabled = false;
  for (platform::Timer* timer : {&library_.Timer2, &library_.Timer4}) timer->enabled = true;
  library_.MyFrame5.visible = false;
  context_.screens.player.load();
  context_.screens.player.File1.path = folder;
}

}  // namespace music
