#include "rehearsal/rehearsals.h"

#include <algorithm>

#include "app/program.h"
#include "forms/main_form_words.h"
#include "platform/fault.h"
#include "rehearsal/devices.h"
#include "rehearsal/scratch_files.h"
#include "rehearsal/simulated_clock.h"
#include "rehearsal/timeline_recorder.h"

namespace rehearsal {
namespace {

using namespace std::chrono_literals;

constexpr platform::Instant slice = 30min;  // of the simulated clock: about a millisecond of the real one

class Ride final : public context::Rehearsal {
 public:
  Ride(platform::FileSystem& files, const std::string& folder, const model::WholeRide& ride,
       platform::Instant afterWholeSecond);

  bool goOn() override;
  [[nodiscard]] const model::Timeline& timeline() const override { return recorder_.timeline(); }

 private:
  void chooseMusic(const model::RideMusic& music);
  void startCountdown(platform::Instant afterWholeSecond);
  void act(const std::function<void()>& what) { program_.loop().guard(what); }

  SimulatedClock clock_{platform::LocalTime{std::chrono::days(20000) + 12h}};
  ScratchFiles files_;
  Devices devices_;
  TimelineRecorder recorder_{clock_};
  RecordedSound sound_{devices_.sound, recorder_};
  RecordedMedia media_{devices_.mediaCommands, recorder_};
  app::Program program_;
  forms::MainForm& main_ = program_.screens().main;
  bool over_ = false;
  bool failed_ = false;  // a fault may have left the ride standing
};

Ride::Ride(platform::FileSystem& files, const std::string& folder, const model::WholeRide& ride,
           platform::Instant afterWholeSecond)
    : files_(files, folder),
      devices_(clock_, files_, folder, SoundMode::Timed),
      program_({clock_, sound_, devices_.dialogs, files_, devices_.screenSaver, media_, devices_.level,
                devices_.shell, devices_.volume, devices_.printer, devices_.clipboard},
               {folder, {}, [this](const std::string&) { failed_ = true; }}) {
  devices_.journal.keepNothing();
  devices_.sound.attach(program_.loop());
  program_.loop().onInput([this] { recorder_.look(); });
  files_.makeFolder(folder);
  if (ride.settings) model::writeSettings(files_, folder + "/par.tq3", *ride.settings);
  over_ = ride.order.sequences == 0 || !program_.start();
  if (over_) return;
  chooseMusic(ride.music);
  act([&] { program_.handOver(ride.order); });
  startCountdown(afterWholeSecond);
}

// As a rider does it, page by page.
void Ride::chooseMusic(const model::RideMusic& music) {
  if (!music.loaded.empty()) program_.screens().player.Text1.text = music.loaded;
  if (music.ticked.empty()) return;
  forms::EnrUneAnnonce& library = program_.screens().announcements;
  act([&] { main_.mnambiance.click(); });
  act([&] { library.Command8.click(); });
  platform::Grid& list = library.ListView1;
  for (int row = 1; row <= list.rowCount(); ++row) {
    const bool ticked =
        std::find(music.ticked.begin(), music.ticked.end(), list.text(row, 1)) != music.ticked.end();
    if (!ticked) continue;
    list.setChecked(row, true);
    act([&] { list.rowTicked(row); });
  }
  if (music.repeats) {
    library.Check2.value = 1;
    act([&] { library.Check2.click(); });
  }
  act([&] { library.MyButton11.click(); });
  act([&] { library.MyButton9.click(); });
}

void Ride::startCountdown(platform::Instant afterWholeSecond) {
  platform::EventLoop& loop = program_.loop();
  // The hand-over itself opens the countdown's frame, in an event of its own.
  const platform::Instant patience = clock_.now() + 10s;
  while (forms::startOffered(main_) && clock_.now() < patience) loop.runUntil(clock_.now() + 100ms);
  loop.runUntil(std::chrono::ceil<std::chrono::seconds>(clock_.now()) + afterWholeSecond);
  recorder_.begin(program_.state());
  act([this] { main_.MyButton3.click(); });
}

bool Ride::goOn() {
  if (over_) return true;
  program_.loop().runUntil(clock_.now() + slice);
  if (!failed_ && forms::rideUnderWay(main_, program_.state())) return false;
  recorder_.end();
  over_ = true;
  return true;
}

}  // namespace

std::unique_ptr<context::Rehearsal> Rehearsals::begin(const model::WholeRide& ride) {
  return begin(ride, platform::Instant{0});
}

std::unique_ptr<context::Rehearsal> Rehearsals::begin(const model::WholeRide& ride,
                                                      platform::Instant afterWholeSecond) {
  return std::make_unique<Ride>(files_, folder_, ride, afterWholeSecond);
}

model::Timeline Rehearsals::whole(const model::WholeRide& ride, platform::Instant afterWholeSecond) {
  const std::unique_ptr<context::Rehearsal> rehearsal = begin(ride, afterWholeSecond);
  while (!rehearsal->goOn()) {
  }
  return rehearsal->timeline();
}

}  // namespace rehearsal
