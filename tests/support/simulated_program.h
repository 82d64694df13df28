// The whole program over a disk in memory that can fail, worked by the console's commands.
#pragma once

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "console/session.h"
#include "rehearsal/memory_file_system.h"
#include "support/faulty_file_system.h"

namespace support {

inline const std::string settingsOff = "000000000000 10               ";
inline const std::string settingsOn = "0111111111012 1               ";

// What a rider does for a list of two rows, each of so many seconds, from the main screen on.
inline std::string composeTwoRows(const std::string& kind, const std::string& seconds,
                                  const std::string& nextKind, const std::string& nextSeconds) {
  const auto row = [](const std::string& number, const std::string& what, const std::string& lasts) {
    return "cell CreerCycle.ListView1 " + number + " 4\npick CreerCycle.Combo1 " + what +
           "\ncell CreerCycle.ListView1 " + number + " 10\npick CreerCycle.Combo4 " + lasts + "\n";
  };
  return "press MainForm.mnCreat\n" + row("2", kind, seconds) + "press CreerCycle.MyButton1\n" +
         row("3", nextKind, nextSeconds);
}

class SimulatedProgram {
 public:
  explicit SimulatedProgram(const std::string& settings = settingsOff,
                            std::chrono::milliseconds timeOfDay = std::chrono::hours(12),
                            rehearsal::SoundMode sound = rehearsal::SoundMode::Instant,
                            console::RiderHands* hands = nullptr)
      : SimulatedProgram(at(timeOfDay, sound), hands) {
    if (!settings.empty()) memory.put("/d/par.tq3", settings);
  }
  explicit SimulatedProgram(const console::Options& options, console::RiderHands* hands = nullptr)
      : options_(options), session_(options_, "/d", out_, hands, &disk) {}

  [[nodiscard]] bool start() { return session_.program().start(); }
  // Carries the commands out, a line each; what they printed. Throws for a command that could not be.
  std::string run(const std::string& commands) {
    std::string printed = attempt(commands);
    if (("\n" + printed).find("\nerror: ") != std::string::npos) throw std::runtime_error(printed);
    return printed;
  }
  // The same for commands that may be wrong.
  std::string attempt(const std::string& commands) {
    out_.str({});
    std::istringstream lines(commands);
    for (std::string line; std::getline(lines, line);) session_.interpreter().execute(line);
    return out_.str();
  }
  [[nodiscard]] int status() { return session_.interpreter().status(); }

  [[nodiscard]] app::Program& program() { return session_.program(); }
  [[nodiscard]] forms::Screens& screens() { return session_.program().screens(); }
  [[nodiscard]] platform::Grid& list() { return screens().editor.ListView1; }
  [[nodiscard]] platform::EventLoop& loop() { return session_.program().loop(); }
  [[nodiscard]] model::SharedState& state() { return session_.program().state(); }

  // A start at that time of some day.
  static console::Options at(std::chrono::milliseconds timeOfDay, rehearsal::SoundMode sound) {
    console::Options options;
    options.sound = sound;
    options.start = platform::LocalTime{std::chrono::days(20000) + timeOfDay};
    return options;
  }

  rehearsal::MemoryFileSystem memory;
  FaultyFileSystem disk{memory};

 private:
  std::ostringstream out_;
  console::Options options_;
  console::Session session_;
};

}  // namespace support
