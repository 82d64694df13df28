// Whatever the machine's clocks do at whatever tenth of a second of a ride.
#include <gmock/gmock.h>

#include <array>

#include "forms/main_form_words.h"
#include "model/grid_rows.h"
#include "support/simulated_program.h"

namespace {

using support::SimulatedProgram;

// Two rows of 3 s and a spoken one between them, from the press that starts the countdown on.
class TimedRide {
 public:
  explicit TimedRide(rehearsal::SoundMode sound = rehearsal::SoundMode::Instant)
      : program_(support::settingsOn, std::chrono::hours(12), sound) {
    program_.memory.put("/d/annonces/allez.wav", "");
    EXPECT_TRUE(program_.start());
    run("pick MainForm.Combo5 2\n" + support::composeTwoRows("Plat", "03", "Sprint", "03") +
        "press CreerCycle.MyButton1\ncell CreerCycle.ListView1 4 4\npick CreerCycle.Combo1 Montée\n"
        "cell CreerCycle.ListView1 4 10\npick CreerCycle.Combo4 03\n");
    program_.list().setText(3, model::column::sequence, "Annonce Vocale");
    program_.list().setText(3, model::column::duration, "-----");
    program_.list().setText(3, model::column::announcement, "allez.wav");
    start();
  }

  std::string run(const std::string& commands) { return program_.run(commands); }
  void start(const std::string& idle = "advance 1\n") {
    run(idle +
        "press CreerCycle.MyButton5\nadvance 0.1\nset MainForm.Combo5.text 2\n"
        "press MainForm.MyButton3\njournal");
  }
  // All that was said and played since the last call; on request without the moments.
  std::string heard(bool withTimes = true) {
    std::istringstream lines(run("journal"));
    std::string all;
    for (std::string line; std::getline(lines, line);)
      all += (withTimes ? line : line.substr(line.find('\t'))) + "\n";
    return all;
  }
  [[nodiscard]] bool paused() { return forms::ridePaused(main()); }
  forms::MainForm& main() { return program_.screens().main; }
  // Row, time left of it and of the whole.
  std::string place() {
    return run("get MainForm.Label16\nget MainForm.Label6\nget MainForm.Label40\nget MainForm.Label11");
  }

 private:
  SimulatedProgram program_;
};

constexpr int tenthsOfARide = 200;

std::string commandAt(int tenth, const std::string& command) {
  return "at " + std::to_string(tenth / 10.0) + " " + command + "\n";
}

TEST(MachineTime, SummerTimeAndAChangedWallClockLeaveARideAsItIs) {
  TimedRide undisturbed;
  undisturbed.run("advance 30");
  const std::string expected = undisturbed.heard();
  EXPECT_THAT(expected, testing::HasSubstr("pensezIdrater.wav"));
  const std::array<std::string, 3> shifts{"wall 3600", "wall -3600", "wall 40000"};
  for (std::size_t tenth = 0; tenth < tenthsOfARide; ++tenth) {
    TimedRide ride;
    ride.run(commandAt(static_cast<int>(tenth), shifts.at(tenth % 3)) + "advance 30");
    ASSERT_EQ(ride.heard(), expected) << tenth;
  }
}

std::string withoutPause(std::string said) {
  for (const char* prompt :
       {"\tprompt\t197\tpausedemande.wav\n", "\tprompt\t198\trepriseentrainement.wav\n"}) {
    const std::size_t at = said.find(prompt);
    EXPECT_NE(at, std::string::npos) << prompt;
    if (at != std::string::npos) said.erase(at, std::string(prompt).size());
  }
  return said;
}

// Where the rider could press the button, a suspend is his press; else it comes as soon as he could.
TEST(MachineTime, ASuspendPausesARideAsItsRiderWould) {
  TimedRide undisturbed;
  undisturbed.run("advance 60");
  const std::string expected = undisturbed.heard(false);
  int together = 0;
  int late = 0;
  for (int tenth = 0; tenth < tenthsOfARide; ++tenth) {
    SCOPED_TRACE(tenth);
    TimedRide pressed;
    TimedRide suspended;
    const bool refused = !pressed.run(commandAt(tenth, "press MainForm.Command7") + "advance 20").empty();
    suspended.run(commandAt(tenth, "suspend 3600") + "advance 20");
    if (!refused) {
      ASSERT_EQ(suspended.paused(), pressed.paused());
    }
    if (!suspended.paused()) continue;  // the ride was over before
    EXPECT_THAT(suspended.main().Label43.caption.get(), testing::HasSubstr("en veille"));
    EXPECT_TRUE(suspended.main().Picture6.visible);
    if (!refused) {
      EXPECT_EQ(suspended.place(), pressed.place());
    }
    (refused ? late : together) += 1;
    suspended.run("suspend 60\nadvance 1");
    EXPECT_TRUE(suspended.paused());
    const std::string resume = "press MainForm.Command7\n";
    EXPECT_EQ(suspended.run(resume), "");
    EXPECT_EQ(suspended.main().Label43.caption, "");
    suspended.run("advance 40");
    const std::string heard = suspended.heard(false);
    EXPECT_EQ(withoutPause(heard), expected);
    pressed.run(resume + "advance 40");
    if (!refused) {
      EXPECT_EQ(heard, pressed.heard(false));
    }
  }
  EXPECT_GT(together, 60);
  EXPECT_GT(late, 20);
}

// A pause that is due goes with its ride, and nothing is paused where none is.
TEST(MachineTime, ASuspendPausesNoLaterRide) {
  TimedRide ride;
  for (const char* way : {"press MainForm.MyButton2\nsuspend 60\nadvance 1\npress MainForm.MyButton5\n",
                          "suspend 60\nadvance 0\npress MainForm.MyButton2\npress MainForm.MyButton5\n",
                          "suspend 60\nadvance 0\npress MainForm.mnCreat\n"}) {
    ride.start(way);
    ride.run("advance 30");
    EXPECT_THAT(ride.heard(), testing::AllOf(testing::Not(testing::HasSubstr("pausedemande")),
                                             testing::HasSubstr("pensezIdrater")))
        << way;
    ride.start("press MainForm.MyButton5\nadvance 1\n");
  }
  SimulatedProgram atRest;
  ASSERT_TRUE(atRest.start());
  EXPECT_EQ(atRest.run("suspend 60\nadvance 1\npick MainForm.Combo2 05\nadvance 2\nget MainForm.Label43"),
            "\n");
}

}  // namespace
