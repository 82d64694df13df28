#include "console/session.h"

#include "platform/documents_folder.h"

namespace console {
namespace {

std::unique_ptr<platform::Clock> clockFor(const Options& options) {
  if (options.realClock) return std::make_unique<platform::RealClock>();
  return std::make_unique<platform::SimulatedClock>(options.start);
}

}  // namespace

Session::Session(const Options& options, const std::string& folder, std::ostream& out, RiderHands* hands,
                 platform::FileSystem* files)
    : clock_(clockFor(options)),
      journal_(*clock_),
      files_(files != nullptr ? *files : disk_),
      sound_(options.sound, files_, folder, journal_),
      dialogs_(journal_),
      screenSaver_(journal_),
      machine_(options.volume),
      media_(*clock_, files_, machine_),
      mediaCommands_(media_),
      journaledMedia_(mediaCommands_, journal_),
      level_(journal_),
      shell_(journal_),
      volume_(machine_, journal_),
      printer_(journal_),
      program_(
          {*clock_, sound_, dialogs_, files_, screenSaver_, journaledMedia_, level_, shell_, volume_,
           printer_},
          {folder, VENTORIA_VERSION, [this](const std::string& text) { journal_.write("fault", {text}); },
           platform::documentsFolder(),
           options.everyTick ? platform::EventLoop::Ticks::Every
                             : platform::EventLoop::Ticks::RestWhereIdle}),
      interpreter_({program_.screens(), program_.state(), program_.loop(), journal_, dialogs_, machine_},
                   hands != nullptr ? *hands : directHands_, out) {
  sound_.attach(program_.loop());
  if (hands == nullptr) watchPopUps(program_.screens(), interpreter_);
}

int Session::run(std::istream& in, std::ostream& errors) {
  if (program_.start()) {
    const int status = interpreter_.run(in);
    program_.end();
    return status;
  }
  journal_.print(errors, {});
  return 1;
}

}  // namespace console
