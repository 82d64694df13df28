// What a script cannot do: a disk that fails, and a rider who touches something while the program waits.
#include <gmock/gmock.h>

#include "forms/main_form_words.h"
#include "runner/boundary_sounds.h"
#include "support/simulated_program.h"
#include "voice/sound_bank.h"

namespace {

using namespace std::chrono_literals;
using support::FaultyFileSystem;
using support::SimulatedProgram;
using testing::HasSubstr;
using testing::Not;

const std::string countdownOfTwoRows = support::composeTwoRows("Plat", "10", "Sprint", "20") + R"(advance 1
press CreerCycle.MyButton5
advance 0.1
journal
press MainForm.MyButton3
)";

TEST(Start, MakesItsFoldersAndTellsWhereOneCannotBeMade) {
  for (int folder = 1; folder <= 5; ++folder) {
    SimulatedProgram program;
    program.disk.failFrom(FaultyFileSystem::Call::MakeFolder, folder);
    EXPECT_FALSE(program.start());
    EXPECT_THAT(program.run("journal dialog"), HasSubstr("Impossible de créer le dossier « /d"));
    EXPECT_EQ(program.memory.folders.size(), static_cast<std::size_t>(folder - 1));
  }
  SimulatedProgram program;
  EXPECT_TRUE(program.start());
  EXPECT_THAT(program.memory.folders,
              testing::UnorderedElementsAre("/d", "/d/chronodat", "/d/annonces", "/d/ambiances", "/d/Vid"));
}

TEST(Start, GoesOnWithoutAFolderThatCannotBeListedAndTellsOfItOnce) {
  SimulatedProgram program;
  program.disk.failFrom(FaultyFileSystem::Call::List, 1);
  EXPECT_TRUE(program.start());
  const std::string told = program.run("journal fault");
  for (const char* folder : {"chronodat", "annonces", "ambiances", "Vid"}) {
    const std::string text = std::string("Impossible de lire le dossier « /d/") + folder;
    ASSERT_THAT(told, HasSubstr(text));
    EXPECT_EQ(told.find(text), told.rfind(text)) << told;
  }
  program.disk.heal();
  program.memory.put("/d/ambiances/a.mp3", "a");
  program.screens().announcements.File1.refresh();
  EXPECT_EQ(program.screens().announcements.File1.lines().size(), 1U);
}

TEST(Rides, PassesBeyondTheNumberedOnesHaveAPromptOfTheirOwn) {
  for (const auto& [pass, name] : {std::pair{1, "seance1.wav"}, {20, "seance20.wav"}, {21, "nvseance.wav"}}) {
    EXPECT_EQ(runner::passSound(pass), name);
    EXPECT_TRUE(voice::soundNumber(name)) << name;
  }
}

// A wait of n seconds ends n seconds after the nearest whole second, midnight or not.
TEST(Waits, LastUntilAWholeSecondOfTheClock) {
  const std::pair<std::chrono::milliseconds, std::chrono::milliseconds> waits[]{
      {12s + 400ms, 600ms},  {12s + 500ms, 500ms},        {13s + 500ms, 1500ms},
      {12s + 600ms, 1400ms}, {23h + 59min + 59s, 1000ms}, {24h - 400ms, 1400ms}};
  for (const auto& [timeOfDay, lasts] : waits) {
    SimulatedProgram program(support::settingsOff, timeOfDay);
    ASSERT_TRUE(program.start());
    program.run("press MainForm.Command4");  // waits one second, and quits
    EXPECT_EQ(program.loop().clock().now(), lasts) << timeOfDay.count();
    EXPECT_TRUE(program.loop().quitting());
  }
}

TEST(Rides, QuittingInAWaitLeavesNothingRunning) {
  SimulatedProgram program(support::settingsOn);
  ASSERT_TRUE(program.start());
  program.run(countdownOfTwoRows);
  program.run("at 2.5 press MainForm.Command4\nadvance 60");
  EXPECT_TRUE(program.loop().quitting());
  EXPECT_EQ(program.state().plan.sequenceCourante, 1);
  EXPECT_THAT(program.run("journal prompt"),
              testing::AllOf(HasSubstr("seance1.wav"), Not(HasSubstr("seq1.wav"))));
}

TEST(Rides, AFaultInATickIsToldOnceAndTheProgramGoesOn) {
  SimulatedProgram program;
  ASSERT_TRUE(program.start());
  program.run(countdownOfTwoRows);
  program.state().plan.rows[2].planDuree = "bientôt";
  const std::string said = program.run("advance 30\njournal fault\npress MainForm.MyButton4\nadvance 1");
  EXPECT_THAT(said, HasSubstr("bientôt"));
  EXPECT_EQ(said.find("bientôt"), said.rfind("bientôt"));
  program.run("expect MainForm.Label18.visible 1\nexpect MainForm.Command7.enabled 0");
  EXPECT_EQ(program.status(), 0);
}

// The countdown frame stands there a moment before the press that opens it.
TEST(Rides, BeginAlsoWhereTheRiderIsQuickerThanTheFrame) {
  const struct {
    const char* button;
    bool frame, countdown;
  } presses[] = {{"MyButton3", true, true}, {"MyButton2", false, false}, {"MyButton9", false, false}};
  for (const auto& [button, frame, countdown] : presses) {
    SimulatedProgram program(support::settingsOn);
    ASSERT_TRUE(program.start());
    const forms::MainForm& main = program.screens().main;
    program.run(support::composeTwoRows("Plat", "10", "Sprint", "20") +
                "advance 1\npress CreerCycle.MyButton5\npress MainForm." + button + "\nadvance 0.2");
    EXPECT_EQ(main.MyFrame2.visible, frame) << button;
    EXPECT_EQ(main.Timer2.enabled, countdown) << button;
    EXPECT_EQ(main.MyButton1.caption, "Stop") << button;
  }
}

// Between two rows no clock runs: the ride is under way all the same.
TEST(Rides, AreUnderWayFromTheCountdownToTheCancel) {
  SimulatedProgram program(support::settingsOn);
  ASSERT_TRUE(program.start());
  const forms::MainForm& main = program.screens().main;
  const model::SharedState& state = program.state();
  int betweenRows = 0;
  program.screens().main.Label11.watch([&](platform::Component&, platform::Prop prop) {
    if (prop != platform::Prop::Caption || main.Label11.caption != "Sprint") return;
    ++betweenRows;
    EXPECT_TRUE(forms::rideUnderWay(main, state));
    EXPECT_FALSE(forms::rideGoesOn(main));
  });
  const struct {
    const char* hands;
    bool underWay, paused, started;
  } moments[] = {{"journal", true, false, false},  // the countdown
                 {"press MainForm.MyButton9\npress MainForm.Command7\nadvance 5", true, true, false},
                 {"press MainForm.MyButton4", false, false, false},
                 {"press MainForm.MyButton5\npress CreerCycle.MyButton5\nadvance 0.1", false, false, false},
                 {"press MainForm.MyButton3\nadvance 5", true, false, true},
                 {"press MainForm.Command7", true, true, true},
                 {"press MainForm.Command7\nadvance 15", true, false, true},
                 {"advance 60", false, false, false}};
  program.run(countdownOfTwoRows);
  for (const auto& [hands, underWay, paused, started] : moments) {
    program.run(hands);
    EXPECT_EQ(forms::rideUnderWay(main, state), underWay) << hands;
    EXPECT_EQ(forms::ridePaused(main), paused) << hands;
    EXPECT_EQ(state.plan.started(), started) << hands;
  }
  EXPECT_EQ(betweenRows, 1);
}

}  // namespace
