#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "console/options.h"
#include "console/ride_mode.h"
#include "console/session.h"
#include "console/typed_answers.h"
#include "console/voice_recording.h"
#include "disk/disk_file_system.h"
#include "platform/program_folder.h"
#include "rehearsal/rehearsals.h"
#include "rehearsal/session_ride.h"
#include "rehearsal/timeline_text.h"
#ifdef VENTORIA_DEVICES
#include "devices/pulse_studio.h"
#endif

namespace {

std::string folderOf(const console::Options& options) {
  const std::string folder = options.folder.empty() ? platform::programFolder() : options.folder;
  return std::filesystem::absolute(folder).lexically_normal().string();
}

// What the ride of this session would be, with the settings and announcements of the program's folder.
int printTimeline(const console::Options& options) {
  disk::DiskFileSystem files;
  const std::string folder = folderOf(options);
  const model::WholeRide ride{
      rehearsal::orderOf(files, options.timeline), rehearsal::settingsIn(files, folder), {}};
  rehearsal::print(std::cout, rehearsal::Rehearsals(files, folder).whole(ride));
  return 0;
}

// Null where the program was built without the audio libraries.
std::unique_ptr<platform::Studio> makeStudio() {
#ifdef VENTORIA_DEVICES
  return std::make_unique<devices::PulseStudio>(&console::Terminal::interrupted);
#else
  return nullptr;
#endif
}

int recordVoice(const std::string& folder) {
  console::TypedAnswers answers;  // first: a closed input could become one of the files of the sound
  const std::unique_ptr<platform::Studio> studio = makeStudio();
  if (studio == nullptr)
    throw std::runtime_error("--record-voice manque à ce programme, construit sans bibliothèques de son.");
  disk::DiskFileSystem files;
  console::VoiceRecording(files, *studio, answers, std::cout,
                          std::filesystem::absolute(folder).lexically_normal().string())
      .run();
  return 0;
}

int runScript(const console::Options& options) {
  std::ifstream script;
  if (!options.script.empty()) {
    script.open(options.script);
    if (!script.is_open()) throw console::UsageError("cannot open " + options.script);
  }
  console::Session session(options, folderOf(options), std::cout);
  return session.run(options.script.empty() ? std::cin : script, std::cerr);
}

}  // namespace

int main(int count, char** words) {
  try {
    const console::Options options = console::parseOptions({words + 1, words + count});
    if (options.help) {
      std::cout << console::usage();
      return 0;
    }
    if (!options.recordVoice.empty()) return recordVoice(options.recordVoice);
    if (!options.timeline.empty()) return printTimeline(options);
    return options.ride.empty() ? runScript(options) : console::ride(options.ride, options.speed);
  } catch (const console::UsageError& error) {
    std::cerr << "ventoria-console: " << error.what() << '\n' << console::usage();
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "ventoria-console: " << error.what() << '\n';
    return 1;
  }
}
