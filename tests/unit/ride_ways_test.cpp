// Whatever a rider presses, at whatever tenth of a second of a ride, there is always a way on.
#include <gmock/gmock.h>

#include "model/grid_rows.h"
#include "support/simulated_program.h"

namespace {

using rehearsal::SoundMode;
using support::SimulatedProgram;

struct Ride {
  const char* name;
  std::string settings;
  SoundMode sound;
  const char* passes;
  int firstTenth;  // before it, the ride is the same as another one of the table
  bool music;
};

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
  }

  std::string run(const std::string& commands) { return program_.run(commands); }
  forms::MainForm& main() { return program_.screens().main; }
  [[nodiscard]] bool paused() { return main().Command7.caption == "REPRENDRE"; }
  [[nodiscard]] bool riding() { return paused() || program_.state().plan.sequenceCourante > 0; }
  [[nodiscard]] bool closed() {
    return !main().MyButton1.enabled && !main().MyButton4.enabled && !main().Command7.enabled;
  }

  // Whatever the press has led to, hands the list over again and starts the countdown.
  void startAnew() {
    if (paused()) pressWhenOpen(main().Command7);
    run("press MainForm.MyButton5\nadvance 0.1\npress CreerCycle.MyButton5\nadvance 0.2");
    if (GetParam().music) run("press MainForm.MyButton19\nadvance 1.5");
    run("press MainForm.MyButton3\njournal");
    ASSERT_TRUE(main().Timer2.enabled);
    ASSERT_EQ(main().MyButton1.caption, "Stop");
  }
  // No stretch of a ride keeps its buttons closed for longer than an announcement and the boundary behind it.
  void pressWhenOpen(platform::Button& button) {
    run("press CreerCycle.MyButton6");
    for (int tenth = 0; !button.enabled && tenth < 60; ++tenth) run("advance 0.1");
    ASSERT_EQ(run("press MainForm." + button.name()), "");
  }
  // All prompts until the end, without their times.
  std::string wholeRide() {
    startAnew();
    std::istringstream lines(run("advance 120\njournal prompt"));
    std::string said;
    for (std::string line; std::getline(lines, line);) said += line.substr(line.rfind('\t')) + "\n";
    return said;
  }
  void pressAt(int tenth, const std::string& button) {
    startAnew();
    const std::string moment = std::to_string(tenth / 10.0);
    // The way by the menu leads to a hand-over at once, perhaps just before a wait ends.
    if (button == "mnCreat") run("at " + std::to_string(tenth / 10.0 + 0.05) + " press CreerCycle.MyButton5");
    const bool refused = !run("at " + moment + " press MainForm." + button + "\nadvance " + moment).empty();
    for (int second = 0, shut = 0; second < 6; ++second) {
      run("advance 1");
      shut = closed() && riding() ? shut + 1 : 0;
      ASSERT_LT(shut, 5);
    }
    // After a cancel the music plays, even if it was being held; after a stop it is silent.
    if (GetParam().music && !refused && (button == "MyButton4" || button == "MyButton1")) {
      EXPECT_EQ(program_.screens().player.Command5.caption.get(), button == "MyButton4" ? "||" : "|>");
    }
    if (paused() && tenth % 2 == 0) pressWhenOpen(main().Command7);
    if (riding()) {
      pressWhenOpen(main().MyButton4);
      run("journal prompt");
      ASSERT_EQ(run("advance 2\njournal prompt"), "");
    }
    ASSERT_EQ(main().Command7.caption, "Pause");
    ASSERT_FALSE(main().Timer1.enabled);
    ASSERT_EQ(run("journal fault"), "");
  }

  SimulatedProgram program_;
};

TEST_P(Ways, LeadOnFromEveryPressAtEveryTenth) {
  wholeRide();
  const std::string whole = wholeRide();  // without a spoken end, the cancel at the end does not speak either
  // The buttons of the countdown frame can be pressed only while it is open.
  const std::pair<const char*, int> buttons[] = {{"MyButton1", 170}, {"Command7", 170}, {"MyButton4", 170},
                                                 {"MyButton5", 170}, {"mnCreat", 170},  {"MyButton9", 15},
                                                 {"MyButton2", 15},  {"MyButton3", 15}, {"MyButton21", 30}};
  for (const auto& [button, tenths] : buttons) {
    const int first = tenths < 170 ? 0 : GetParam().firstTenth;
    for (int tenth = first; tenth < first + tenths; ++tenth) {
      SCOPED_TRACE(std::string(button) + " at " + std::to_string(tenth));
      pressAt(tenth, button);
      if (HasFatalFailure()) return;
    }
    ASSERT_EQ(wholeRide(), whole) << button;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rides, Ways,
    testing::Values(Ride{"VoiceOff", support::settingsOff, SoundMode::Instant, "0", 0, false},
                    Ride{"Spoken", support::settingsOn, SoundMode::Instant, "0", 0, false},
                    Ride{"Timed", support::settingsOn, SoundMode::Timed, "0", 0, false},
                    Ride{"SecondPass", support::settingsOn, SoundMode::Instant, "2", 140, false},
                    Ride{"Music", yielding, SoundMode::Timed, "0", 0, true}),
    [](const auto& ride) { return ride.param.name; });

}  // namespace
