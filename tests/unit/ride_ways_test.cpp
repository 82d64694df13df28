// Whatever a rider presses, at whatever tenth of a second of a ride, there is always a way on.
#include <gmock/gmock.h>

#include "model/grid_rows.h"
#include "support/simulated_program.h"

namespace {

using support::SimulatedProgram;

struct Ride {
  const char* name;
  std::string settings;
  console::SoundMode sound;
  const char* passes;
  bool music;
};

const std::string silent = "0000000010011 0               ";
const std::string yielding = "0111111111102 1               ";

class Ways : public testing::TestWithParam<Ride> {
 protected:
  Ways() : program_(GetParam().settings, std::chrono::hours(12), GetParam().sound) {
    program_.memory.put("/d/ambiances/a.mp3", std::string(200000, 'a'));
    program_.memory.put("/d/annonces/allez.wav", "");
    EXPECT_TRUE(program_.start());
    run("pick MainForm.Combo5 1\npress MainForm.mnCreat");
    platform::Grid& list = program_.list();
    for (int row = 2; row <= 4; ++row) {
      const std::string cell = "\ncell CreerCycle.ListView1 " + std::to_string(row);
      run((row > 2 ? "press CreerCycle.MyButton1" : "") + cell + " 4\npick CreerCycle.Combo1 Plat" + cell +
          " 10\npick CreerCycle.Combo4 03");
    }
    list.setText(3, model::column::sequence, "Annonce Vocale");
    list.setText(3, model::column::duration, "-----");
    list.setText(3, model::column::announcement, "allez.wav");
    list.setText(1, model::column::times, GetParam().passes);
    run("advance 1");
    if (GetParam().music) run("press CreerCycle.MyButton6\npress MainForm.MyButton19\nadvance 2");
  }

  std::string run(const std::string& commands) { return program_.run(commands); }
  forms::MainForm& main() { return program_.screens().main; }
  [[nodiscard]] bool paused() { return main().Command7.caption == "REPRENDRE"; }
  [[nodiscard]] bool riding() { return paused() || program_.state().sequenceCourante > 0; }
  [[nodiscard]] bool closed() {
    return !main().MyButton1.enabled && !main().MyButton4.enabled && !main().Command7.enabled;
  }

  // What is said until the end, without its moments.
  std::string wholeRide() {
    std::istringstream lines(run("advance 120\njournal prompt"));
    std::string said;
    for (std::string line; std::getline(lines, line);) said += line.substr(line.rfind('\t')) + "\n";
    return said;
  }
  // From wherever the press has led: the list handed over anew, and the countdown begun.
  void startAnew() {
    if (paused()) patientlyPress(main().Command7);
    run("press MainForm.MyButton5");
    run("advance 0.1\npress CreerCycle.MyButton5\nadvance 0.2\npress MainForm.MyButton3\njournal");
    ASSERT_TRUE(main().Timer2.enabled);
    ASSERT_EQ(main().MyButton1.caption, "Stop");
  }
  // No stretch of a ride keeps all its buttons closed for longer than the announcement and its boundary.
  void patientlyPress(platform::Button& button) {
    run("press CreerCycle.MyButton6");
    for (int tenth = 0; !button.enabled && tenth < 100; ++tenth) run("advance 0.1");
    ASSERT_EQ(run("press MainForm." + button.name()), "") << button.name();
  }

  SimulatedProgram program_;
};

TEST_P(Ways, LeadOnFromEveryPressAtEveryTenth) {
  startAnew();
  run("advance 120");
  ASSERT_FALSE(riding());
  startAnew();
  const std::string whole = wholeRide();
  const int tenths = 10 * (std::stoi(GetParam().passes) > 1 ? 30 : 16);
  for (const char* press :
       {"press MainForm.MyButton1", "press MainForm.Command7", "press MainForm.MyButton4",
        "press MainForm.MyButton5", "press MainForm.mnCreat", "press MainForm.MyButton9",
        "press MainForm.MyButton2", "press MainForm.MyButton3", "press MainForm.MyButton21"}) {
    for (int tenth = 0; tenth < tenths; ++tenth) {
      SCOPED_TRACE(std::string(press) + " at " + std::to_string(tenth));
      startAnew();
      run("at " + std::to_string(tenth / 10.0) + " " + press + "\nadvance " + std::to_string(tenth / 10.0));
      for (int second = 0, shut = 0; second < 8; ++second) {
        run("advance 1");
        shut = closed() && riding() ? shut + 1 : 0;
        ASSERT_LT(shut, 8);
      }
      if (paused()) patientlyPress(main().Command7);
      if (riding()) patientlyPress(main().MyButton4);
      ASSERT_EQ(main().Command7.caption, "Pause");
      ASSERT_TRUE(closed() || main().Timer2.enabled || program_.state().nbSequences == 0);
      if (HasFatalFailure()) return;
    }
    startAnew();
    ASSERT_EQ(wholeRide(), whole) << press;
  }
}

INSTANTIATE_TEST_SUITE_P(Rides, Ways,
                         testing::Values(Ride{"Silent", silent, console::SoundMode::Instant, "0", false},
                                         Ride{"Spoken", support::settingsOn, console::SoundMode::Instant, "0", false},
                                         Ride{"Timed", support::settingsOn, console::SoundMode::Timed, "0", false},
                                         Ride{"Passes", support::settingsOn, console::SoundMode::Instant, "2", false},
                                         Ride{"Music", yielding, console::SoundMode::Timed, "2", true}),
                         [](const auto& ride) { return ride.param.name; });

}  // namespace
