#include "music/menu_orders.h"

#include "forms/music_buttons.h"
#include "forms/sound_settings_words.h"

namespace music {

MenuOrders::MenuOrders(const context::Context& context, voice::Voice& voice, Selection& selection)
    : context_(context),
      voice_(voice),
      main_(context.screens.main),
      library_(context.screens.announcements),
      selection_(selection) {
  connectMainScreen();
  library_.MyButton9.click.handle([this] { leaveLibrary(); });
  platform::once(library_.Timer12, [this] { library_.MyButton12.click(); });
  platform::once(library_.Timer13, [this] { startWholeLibrary(); });
  platform::once(library_.Timer14, [this] { library_.Command8.click(); });
}

void MenuOrders::connectMainScreen() {
  main_.mnambiance.click.handle([this] { openLibrary(); });
  main_.mnSelctMusiqPrefere.click.handle([this] {
    openLibrary();
    library_.Timer14.enabled = true;
  });
  main_.MyButton19.click.handle([this] {
    library_.load();  // leaving an empty list unloaded it
    library_.Timer13.enabled = true;
    forms::showMusicPlaying(main_);
  });
  main_.MyButton21.click.handle([this] {
    context_.screens.player.Timer3.enabled = true;
    forms::showMusicStopped(main_);
  });
}

void MenuOrders::openLibrary() {
  main_.hide();
  library_.show();
  library_.MyFrame1.visible = true;
}

void MenuOrders::startWholeLibrary() {
  forms::letMusicYield(main_);
  const auto library = static_cast<int>(library_.File1.lines().size());
  platform::Variable<int>& ticked = selection_.nbMusiquesCochees;
  if (ticked == 0 || ticked == library) {
    ticked = library;
    library_.Command8.click();
    library_.Check1.value = 1;
    library_.Check2.value = 1;
    voice_.attendre(1);
  }
  library_.MyButton12.click();
}

// With a list the page is only hidden, so that the music goes on from piece to piece.
void MenuOrders::leaveLibrary() {
  if (library_.ListView1.rowCount() > 0) {
    library_.hide();
    main_.show();
    return;
  }
  main_.show();
  library_.unload();
}

}  // namespace music
