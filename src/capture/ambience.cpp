#include "capture/ambience.h"

#include "forms/music_buttons.h"

namespace capture {

Ambience::Ambience(const context::Context& context, voice::Voice& voice, Selection& selection)
    : context_(context),
      voice_(voice),
      main_(context.screens.main),
      form_(context.screens.announcements),
      selection_(selection) {
  connectMainScreen();
  form_.MyButton9.click.handle([this] { leaveLibrary(); });
  platform::once(form_.Timer12, [this] { form_.MyButton12.click(); });
  platform::once(form_.Timer13, [this] { startWholeLibrary(); });
  platform::once(form_.Timer14, [this] { form_.Command8.click(); });
}

void Ambience::connectMainScreen() {
  main_.mnEnrAnnVocale.click.handle([this] { openRecording(); });
  main_.mnambiance.click.handle([this] { openLibrary(); });
  main_.mnSelctMusiqPrefere.click.handle([this] {
    openLibrary();
    form_.Timer14.enabled = true;
  });
  main_.MyButton19.click.handle([this] {
    form_.load();  // leaving an empty list unloaded it
    form_.Timer13.enabled = true;
    forms::showMusicPlaying(main_);
  });
  main_.MyButton21.click.handle([this] {
    context_.screens.player.Timer3.enabled = true;
    forms::showMusicStopped(main_);
  });
}

void Ambience::openRecording() {
  context_.screens.player.Timer3.enabled = true;
  forms::showMusicStopped(main_);
  form_.MyFrame1.visible = false;
  main_.hide();
  form_.show();
}

void Ambience::openLibrary() {
  main_.hide();
  form_.show();
  form_.MyFrame1.visible = true;
}

void Ambience::startWholeLibrary() {
  main_.Check10.value = 1;
  const auto library = static_cast<int>(form_.File1.lines().size());
  int& ticked = selection_.nbMusiquesCochees;
  if (ticked == 0 || ticked == library) {
    ticked = library;
    form_.Command8.click();
    form_.Check1.value = 1;
    form_.Check2.value = 1;
    voice_.attendre(1);
  }
  form_.MyButton12.click();
}

// With a list the page only hides, so that the music keeps going from piece to piece.
void Ambience::leaveLibrary() {
  if (form_.ListView1.rowCount() > 0) {
    form_.hide();
    main_.show();
    return;
  }
  main_.show();
  form_.unload();
}

}  // namespace capture
