#include "console/ride_mode.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "app/program.h"
#include "console/reach.h"
#include "console/ride_clock.h"
#include "console/ride_screen.h"
#include "disk/disk_file_system.h"
#include "forms/main_form_words.h"
#include "rehearsal/devices.h"

namespace console {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// A folder for one ride, so that the rider's own sessions and settings stay as they are.
class ScratchFolder {
 public:
  explicit ScratchFolder(const fs::path& sessionFile) {
    std::string made = fs::temp_directory_path() / "ventoria-XXXXXX";  // for this user alone
    if (::mkdtemp(made.data()) == nullptr)
      throw fs::filesystem_error("mkdtemp", made, std::error_code(errno, std::generic_category()));
    path_ = made;
    fs::create_directory(path_ / "chronodat");
    session_ = path_ / "chronodat" / sessionFile.filename();
    fs::copy_file(sessionFile, session_);
    // The announcements that a session names, and the rider's own voice, lie beside the folder of sessions.
    for (const char* name : {"annonces", "voix"}) {
      const fs::path folder = fs::absolute(sessionFile).parent_path().parent_path() / name;
      if (fs::is_directory(folder)) fs::create_directory_symlink(folder, path_ / name);
    }
  }
  ~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  [[nodiscard]] std::string folder() const { return path_.string(); }
  [[nodiscard]] std::string session() const { return session_.string(); }

 private:
  fs::path path_;
  fs::path session_;
};

// Shows messages and agrees to them (a conversion changes only the copy); always chooses the one session.
class RideDialogs final : public platform::Dialogs {
 public:
  RideDialogs(RideScreen& screen, std::string session) : screen_(screen), session_(std::move(session)) {}

  platform::Answer message(const platform::Message& message) override {
    screen_.printLine(message.title + "\n" + message.text);
    const bool okOffered = message.buttons != platform::MessageButtons::YesNoCancel;
    return okOffered ? platform::Answer::Ok : platform::Answer::Yes;
  }
  std::vector<std::string> chooseFiles(const platform::FileRequest&) override { return {session_}; }

 private:
  RideScreen& screen_;
  std::string session_;
};

// Prints what the loudspeaker would say, and takes as long as it would.
class WrittenVoice final : public platform::SoundOutput {
 public:
  WrittenVoice(RideScreen& screen, platform::SoundOutput& silence) : screen_(screen), silence_(silence) {}

  bool hasDevice() override { return true; }
  void play(const platform::SoundClip& clip) override {
    screen_.printLine("« " + std::string(clip.spoken.empty() ? clip.name : clip.spoken) + " »");
    silence_.play(clip);
  }
  void playFile(const std::string& path) override {
    screen_.printLine("« " + fs::path(path).filename().string() + " »");
    silence_.playFile(path);
  }

 private:
  RideScreen& screen_;
  platform::SoundOutput& silence_;
};

class Ride {
 public:
  Ride(const std::string& sessionFile, double speed)
      : scratch_(sessionFile),
        clock_(speed, terminal_),
        screen_(terminal_, std::cout),
        devices_(clock_, files_, scratch_.folder(), rehearsal::SoundMode::Timed),
        voice_(screen_, devices_.sound),
        dialogs_(screen_, scratch_.session()),
        program_({clock_, voice_, dialogs_, files_, devices_.screenSaver, devices_.mediaCommands,
                  devices_.level, devices_.shell, devices_.volume, devices_.printer, devices_.clipboard},
                 {scratch_.folder(), VENTORIA_VERSION, {}}),
        refreshPeriod_(static_cast<int>(100 * speed)) {
    devices_.sound.attach(loop_);
    loop_.onInput([this] { handleInput(); });
  }

  int run() {
    if (!program_.start() || !load()) return 1;
    bool started = false;
    while (!loop_.quitting()) {
      loop_.runUntil(clock_.now() + refreshPeriod_);
      started = started || forms::chronoRuns(main_);
      if (started && !forms::rideGoesOn(main_)) break;
    }
    return 0;
  }

 private:
  // As a rider does it: goes to the editor, adds the file, hands the list over, starts the countdown.
  bool load() {
    forms::CreerCycle& editor = program_.screens().editor;
    press(main_.MyButton5);
    press(editor.MyButton4);
    if (!loop_.quitting()) press(editor.MyButton5);
    if (program_.state().nbSequences == 0) {
      if (!loop_.quitting()) screen_.printLine("Aucune séquence à parcourir.");
      return loop_.quitting();
    }
    // The hand-over itself presses Start, which is what readies the countdown.
    const platform::Instant patience = clock_.now() + 10s;
    while (forms::startOffered(main_) && clock_.now() < patience) loop_.runUntil(clock_.now() + 100ms);
    press(main_.MyButton3);
    return true;
  }

  [[nodiscard]] static bool canPress(const platform::Button& button) {
    return reachOf(button, nullptr) == Reach::Open;
  }

  bool press(const platform::Button& button) {
    if (!canPress(button)) return false;
    loop_.guard([&] { button.click(); });
    return true;
  }

  // Between events: the keys, Ctrl+C, the screen.
  void handleInput() {
    if (cancelling_) return;
    screen_.show(main_, program_.state());
    for (char key = terminal_.key(); key != 0 && !cancelling_; key = terminal_.key()) {
      if (key == 'p') press(main_.Command7);
      if (key == 'q') cancel();
    }
    if (!cancelling_ && Terminal::interrupted()) cancel();
  }

  void cancel() {
    cancelling_ = true;
    if (!press(main_.MyButton4)) press(main_.MyButton2);  // while the countdown frame is open, its own cancel
    loop_.quit();
  }

  ScratchFolder scratch_;
  Terminal terminal_;
  RideClock clock_;
  RideScreen screen_;
  disk::DiskFileSystem files_;
  rehearsal::Devices devices_;
  WrittenVoice voice_;
  RideDialogs dialogs_;
  app::Program program_;
  platform::EventLoop& loop_ = program_.loop();
  forms::MainForm& main_ = program_.screens().main;
  platform::Instant refreshPeriod_;
  bool cancelling_ = false;
};

}  // namespace

int ride(const std::string& sessionFile, double speed) {
  if (!fs::is_regular_file(sessionFile)) {
    std::cerr << "ventoria-console: cannot open " << sessionFile << '\n';
    return 1;
  }
  return Ride(sessionFile, speed).run();
}

}  // namespace console
