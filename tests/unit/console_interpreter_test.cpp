#include <gmock/gmock.h>

#include <sstream>

#include "console/direct_hands.h"
#include "console/interpreter.h"
#include "platform/fault.h"
#include "rehearsal/simulated_clock.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

// The forms without their logic, and an interpreter that works them.
class InterpreterTest : public testing::Test {
 protected:
  InterpreterTest() {
    for (platform::Form* form : screens_.all()) form->attach(loop_);
    loop_.onFault([this](const std::string& text) { journal_.write("fault", {text}); });
    console::watchPopUps(screens_, interpreter_);
    main_.MyButton1.enabled = true;
    main_.show();
    editor_.show();
    for (int column = 1; column <= 3; ++column) editor_.ListView1.addColumn({"", column == 1 ? 0 : 100});
    editor_.ListView1.addRow({"1", "a", "b\tc"});
    editor_.ListView1.addRow({"2", "", "d"});
  }
  ~InterpreterTest() override {
    for (platform::Form* form : screens_.all()) form->unload();
  }

  // What a script prints.
  std::string run(const std::string& script) {
    out_.str({});
    std::istringstream in(script);
    status_ = interpreter_.run(in);
    return out_.str();
  }

  rehearsal::SimulatedClock clock_{platform::LocalTime{}};
  platform::EventLoop loop_{clock_};
  forms::Screens screens_;
  forms::MainForm& main_ = screens_.main;
  forms::CreerCycle& editor_ = screens_.editor;
  model::SharedState state_;
  rehearsal::Journal journal_{clock_};
  rehearsal::ScriptedDialogs dialogs_{journal_};
  rehearsal::SimulatedMachine machine_;
  rehearsal::SimulatedClipboard clipboard_{journal_};
  console::DirectHands hands_;
  std::ostringstream out_;
  console::Interpreter interpreter_{
      {screens_, state_, loop_, journal_, dialogs_, machine_, clipboard_}, hands_, out_};
  int status_ = 0;
};

TEST_F(InterpreterTest, RefusesWhatTheRiderCannotTouch) {
  int presses = 0;
  for (platform::Button* button :
       {&main_.MyButton1, &main_.MyButton3, &main_.MyButton13, &screens_.main.MyButton10})
    button->click.handle([&] { ++presses; });
  EXPECT_EQ(run("press MainForm.MyButton1\npress MainForm.MyButton3\npress MainForm.MyButton13\n"),
            "refused: hidden\nrefused: hidden\n");
  EXPECT_EQ(presses, 1);
  main_.MyFrame2.visible = true;
  EXPECT_EQ(run("press MainForm.MyButton10"), "refused: disabled\n");
  main_.MyFrame2.enabled = false;
  EXPECT_EQ(run("press MainForm.MyButton3"), "refused: disabled\n");
  main_.hide();
  EXPECT_EQ(run("press MainForm.MyButton1\nhover MainForm.MyButton1\npress MainForm.mnsons"),
            "refused: hidden\nrefused: hidden\nrefused: hidden\n");
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(presses, 1);
  run("call MainForm.MyButton3");
  EXPECT_EQ(presses, 2);
  main_.show();
  EXPECT_EQ(run("forms"), "CreerCycle\nMainForm\n") << "in order of showing";
  loop_.quit();
  EXPECT_EQ(run("press MainForm.MyButton1\nforms\nvisible MainForm"), "refused: hidden\n");
}

TEST_F(InterpreterTest, APopUpIsOpenUntilTheNextCommandOnSomethingElse) {
  int deletions = 0;
  editor_.mnsupprim.click.handle([&] { ++deletions; });
  editor_.ListView1.pressed.handle([&](platform::MouseButton button) {
    if (button == platform::MouseButton::Right) editor_.mnSupprimer.popUp();
  });
  const std::string press = "press CreerCycle.mnsupprim\n";
  EXPECT_EQ(run(press), "refused: hidden\n");
  EXPECT_EQ(run("cell CreerCycle.ListView1 1 2\n" + press), "refused: hidden\n");
  EXPECT_EQ(run("cell CreerCycle.ListView1 1 2 right\n" + press), "refused: disabled\n");
  editor_.mnSupprimer.enabled = true;
  EXPECT_EQ(run("cell CreerCycle.ListView1 1 2 right\nget MainForm.Label6\n" + press), "00\n");
  EXPECT_EQ(deletions, 1);
  EXPECT_EQ(run("cell CreerCycle.ListView1 1 2 right\nhover CreerCycle.Command4\n" + press),
            "refused: hidden\n");
  editor_.mnsupprim.visible = false;
  EXPECT_EQ(run("cell CreerCycle.ListView1 1 2 right\n" + press), "refused: hidden\n");
  EXPECT_EQ(run("press MainForm.mnVolume\npress CreerCycle.mnSortir"), "");
  main_.mnAnnVocabl.enabled = false;
  EXPECT_EQ(run("press MainForm.mnVolume"), "refused: disabled\n");
}

TEST_F(InterpreterTest, APostponedCommandComesInsideAWaitAndBehindASound) {
  using namespace std::chrono_literals;
  main_.MyButton1.click.handle([&] { loop_.runUntil(clock_.now() + 2000ms); });
  main_.Command2.click.handle([&] {
    const platform::EventLoop::Blocking sound(loop_);
    clock_.sleepUntil(clock_.now() + 2000ms);
  });
  EXPECT_EQ(run("at 1 echo in the wait\nat 0.5 echo first\nat 1 press MainForm.MyButton3\n"
                "press MainForm.MyButton1\necho behind the wait\nat 1 echo behind the sound\n"
                "press MainForm.Command2\nadvance 0\nat 9 echo never"),
            "0.500\tfirst\n1.000\tin the wait\n1.000\trefused: hidden\nbehind the wait\n"
            "4.000\tbehind the sound\n");
  EXPECT_EQ(status_, 0);
  for (const char* unfit : {"at 1 advance 1", "at 1 at 1 echo", "at -1 echo", "at 1", "at x echo"}) {
    EXPECT_THAT(run(unfit), StartsWith("error: ")) << unfit;
  }
}

TEST_F(InterpreterTest, TheHandsRaiseWhatARidersWouldRaise) {
  std::string heard;
  const auto record = [&](const char* what) { return [&heard, what] { heard += std::string(what) + " "; }; };
  main_.Check2.click.handle(record("check"));
  main_.MyButton1.click.handle(record("click"));
  main_.MyButton1.doubleClick.handle(record("double"));
  main_.Combo1.click.handle(record("pick"));
  main_.Combo1.enter.handle(record("enter"));
  main_.Combo1.validate.handle(record("leave"));
  main_.Combo1.setLines({"00", "01"});
  main_.Picture1.visible = editor_.File1.visible = true;
  editor_.File1.readThrough([](const std::string&) { return std::vector<std::string>{"a.wav", "b.wav"}; });
  editor_.File1.path = "/";
  editor_.File1.key.handle([&](const std::string& key) { heard += key + " "; });
  editor_.File1.click.handle(record("file"));
  const std::pair<const char*, const char*> cases[]{
      {"tick MainForm.Check2 1", "check "},     {"tick MainForm.Check2 1", ""},
      {"press MainForm.Check2", "check "},      {"double MainForm.MyButton1", "click double "},
      {"pick MainForm.Combo1 01", "pick "},     {"type MainForm.Combo1 07", "enter "},
      {"key MainForm.Combo1 Enter", "enter "},  {"key MainForm.Combo1 F5", ""},
      {"press MainForm.Label18", "leave "},     {"press MainForm.Label18", ""},
      {"pick CreerCycle.File1 b.wav", "file "}, {"key CreerCycle.File1 F8", "F8 "}};
  for (const auto& [command, expected] : cases) {
    heard.clear();
    EXPECT_EQ(run(command), "") << command;
    EXPECT_EQ(heard, expected) << command;
  }
  EXPECT_EQ(run("get MainForm.Combo1\nget MainForm.Combo1.index\nget CreerCycle.File1"), "07\n-1\nb.wav\n");
}

TEST_F(InterpreterTest, LeavingABoxMayCloseWhatWasToBeTouched) {
  main_.Combo1.setLines({"00"});
  main_.Combo1.validate.handle([&] { main_.MyButton1.visible = false; });
  EXPECT_EQ(run("pick MainForm.Combo1 00\npress MainForm.MyButton1"), "refused: hidden\n");
}

TEST_F(InterpreterTest, ShowsWhatTheRiderSees) {
  main_.hide();
  main_.show();
  EXPECT_EQ(run("forms\nvisible LectMCI\nrows CreerCycle.ListView1\necho  \" a\\tb \"\n# echo x"),
            "CreerCycle\nMainForm\n1\ta\tb\\tc\n2\t\td\n a\\tb \n");
  const std::string seen = run("visible MainForm");
  EXPECT_THAT(seen, HasSubstr("MainForm.MyButton1\tStart\n"));
  EXPECT_THAT(seen, testing::Not(testing::AnyOf(HasSubstr("MyButton3\t"), HasSubstr("Timer"))));
}

TEST_F(InterpreterTest, TellsWhatItCannotUnderstandAndGoesOn) {
  const std::pair<const char*, const char*> cases[]{
      {"presss MainForm.MyButton1", "error: no command presss; near: press"},
      {"press MainFrm.MyButton1", "error: no form MainFrm; near: MainForm"},
      {"press MainForm.MyButon1", "error: no control MainForm.MyButon1; near: MyButton1"},
      {"press MainForm", "error: \"MainForm\" is no FORM.CONTROL"},
      {"press", "error: missing FORM.CONTROL"},
      {"press MainForm.Timer1", "error: press"},
      {"press MainForm.Combo1", "error: press"},
      {"type MainForm.MyButton1 x", "error: type"},
      {"pick MainForm.Combo1 99", "error: no line \"99\""},
      {"key MainForm.Combo1 F1", "error: no key F1"},
      {"cell CreerCycle.ListView1 3 2", "error: ListView1 has 2 rows"},
      {"cell CreerCycle.ListView1 1 1", "refused: hidden"},
      {"cell CreerCycle.ListView1 1 2 up", "error: \"up\""},
      {"set MainForm.Check1.value x", "error: \"x\" is no whole number"},
      {"set MainForm.MyButton1.visible 2", "error: \"2\" is neither 0 nor 1"},
      {"get MainForm.Timer1.caption", "error: Timer1 has no property caption"},
      {"advance -1", "error: "},
      {"advance nan", "error: "},
      {"volume 101", "error: "},
      {"var nbSequence", "error: no variable nbSequence; near: nbSequences"},
      {"journal promt", "error: no kind promt; near: prompt"},
      {"forms now", "error: too many words"},
      {"expect MainForm.Label6.caption \" x\\n\"",
       "FAILED: MainForm.Label6.caption is \"00\", not \" x\\n\""},
      {"expectvar nbSequences 3", "FAILED: nbSequences is \"0\", not \"3\""}};
  for (const auto& [command, printed] : cases) {
    EXPECT_THAT(run(std::string(command) + "\necho on"),
                testing::AllOf(StartsWith(printed), testing::EndsWith("\non\n")));
  }
}

TEST_F(InterpreterTest, TheStatusTellsOfFailuresAndErrorsOnly) {
  main_.MyButton1.click.handle([] { throw platform::Fault("Panne."); });
  EXPECT_EQ(run("press MainForm.MyButton3\npress MainForm.MyButton1\njournal\nquit\nbogus"),
            "refused: hidden\n0.000\tfault\tPanne.\n");
  EXPECT_EQ(status_, 0);
  dialogs_.queue("yes");
  dialogs_.message({});
  EXPECT_EQ(interpreter_.status(), 1);
}

}  // namespace
