#include "console/session.h"

#include "platform/documents_folder.h"
#include "rehearsal/simulated_clock.h"

namespace console {
namespace {

std::unique_ptr<platform::Clock> clockFor(const Options& options) {
  if (options.realClock) return std::make_unique<platform::RealClock>();
  return std::make_unique<rehearsal::SimulatedClock>(options.start);
}

}  // namespace

Session::Session(const Options& options, const std::string& folder, std::ostream& out, RiderHands* hands,
                 platform::FileSystem* files)
    : clock_(clockFor(options)),
      devices_(*clock_, files != nullptr ? *files : disk_, folder, options.sound, options.volume),
      rehearsals_(devices_.files, folder),
      program_(devices_.outside(),
               {folder, VENTORIA_VERSION,
                [this](const std::string& text) { devices_.journal.write("fault", {text}); },
                platform::documentsFolder(), &rehearsals_,
                options.everyTick ? platform::EventLoop::Ticks::Every
                                  : platform::EventLoop::Ticks::RestWhereIdle}),
      interpreter_({program_.screens(), program_.state(), program_.loop(), devices_.journal, devices_.dialogs,
                    devices_.machine, devices_.clipboard},
                   hands != nullptr ? *hands : directHands_, out) {
  devices_.sound.attach(program_.loop());
  if (hands == nullptr) watchPopUps(program_.screens(), interpreter_);
}

int Session::run(std::istream& in, std::ostream& errors) {
  if (program_.start()) {
    const int status = interpreter_.run(in);
    program_.end();
    return status;
  }
  devices_.journal.print(errors, {});
  return 1;
}

}  // namespace console
