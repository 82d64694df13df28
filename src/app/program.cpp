#include "app/program.h"

#include "announcements/page.h"
#include "context/context.h"
#include "editor/page.h"
#include "help/films.h"
#include "help/web.h"
#include "music/library.h"
#include "platform/fault.h"
#include "player/file_information.h"
#include "player/player.h"
#include "print/print_form.h"
#include "runner/advance.h"
#include "runner/chrono.h"
#include "runner/countdown.h"
#include "runner/end_time.h"
#include "runner/hand_over.h"
#include "runner/main_screen.h"
#include "runner/reset.h"
#include "runner/settings_page.h"
#include "runner/suspend.h"
#include "volume/volume_general.h"

namespace app {

struct Program::Logic {
  Logic(Program& program, const Setup& setup)
      : context{program.screens_, program.state_, program.loop_, program.outside_, setup.rehearsals},
        voice(context),
        waits(voice, program.loop_),
        reset(context, voice, waits),
        endTime(context),
        advance(context, voice, waits, endTime),
        suspend(context),
        chrono(context, advance, waits, suspend),
        countdown(context, voice, advance, endTime),
        handOver(context, waits),
        settings(context, voice),
        mainScreen(context, voice, settings, setup.folder,
                   player::informationFichier(player::programFile(), setup.version).FileVersion),
        editorPage(context, voice),
        player(context),
        library(context, voice, setup.documentsFolder),
        announcementsPage(context, voice),
        volumeGeneral(context),
        printForm(context),
        films(context),
        web(context) {
    // Announcements and music library share this page. It is unloaded when left with an empty list of music,
    // so both are reset when it is loaded again.
    context.screens.announcements.onLoad.handle([this] {
      library.makeReady();
      announcementsPage.makeReady();
    });
  }

  context::Context context;
  voice::Voice voice;
  runner::RideWaits waits;
  runner::Reset reset;
  runner::EndTime endTime;
  runner::Advance advance;
  runner::Suspend suspend;
  runner::Chrono chrono;
  runner::Countdown countdown;
  runner::HandOver handOver;
  runner::SettingsPage settings;
  runner::MainScreen mainScreen;
  editor::Page editorPage;
  player::Player player;
  music::Library library;
  announcements::Page announcementsPage;
  volume::VolumeGeneral volumeGeneral;
  print::PrintForm printForm;
  help::Films films;
  help::Web web;
};

namespace {

void showFault(platform::Dialogs& dialogs, const std::string& text) {
  dialogs.message(
      {platform::MessageKind::Critical, platform::MessageButtons::Ok, "Une Erreur est Survenue...", text});
}

}  // namespace

Program::Program(const platform::Outside& outside, const Setup& setup)
    : outside_(outside), loop_(outside_.clock, setup.ticks) {
  for (platform::Form* form : screens_.all()) {
    form->attach(loop_);
    for (platform::Component* component : form->components()) {
      if (auto* list = dynamic_cast<platform::FileList*>(component)) {
        list->readThrough([this](const std::string& folder) { return listed(folder); });
      }
    }
  }
  loop_.onFault([this, observer = setup.faultObserver](const std::string& text) {
    if (observer) observer(text);
    showFault(outside_.dialogs, text);
  });
  logic_ = std::make_unique<Logic>(*this, setup);
}

Program::~Program() = default;

// A folder that cannot be listed counts as empty. It is told once for whatever the rider did, although
// several lists may show it.
std::vector<std::string> Program::listed(const std::string& folder) {
  std::vector<std::string> names;
  const std::uint64_t action = loop_.action();
  loop_.guard([&] {
    try {
      names = outside_.files.list(folder);
    } catch (const platform::FileFault&) {
      if (unlisted_.emplace(action, folder).second) throw;
    }
  });
  return names;
}

void Program::handOver(const model::RideOrder& order) {
  logic_->handOver.begin(order);
}

void Program::end() {
  loop_.guard([this] { logic_->editorPage.keepDraft(); });
}

void Program::endAtOnce() {
  end();
  loop_.guard([this] {
    if (state_.ecranVeilleActif == "oui") outside_.screenSaver.setActive(true);
  });
  loop_.quit();
}

bool Program::start() {
  try {
    logic_->mainScreen.demarrerProgramme();
    return true;
  } catch (const platform::Fault& fault) {
    showFault(outside_.dialogs, fault.what());
    return false;
  }
}

}  // namespace app
