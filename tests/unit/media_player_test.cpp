#include <gmock/gmock.h>

#include "support/media_files.h"
#include "support/simulated_program.h"

namespace {

using support::SimulatedProgram;
using testing::HasSubstr;

const std::string noPiece = "dialog\tmessage\tVentoria\tAucune Musique d'Ambiance Sélectionnée...\tok\n";

// The program with three pieces in the music folder; the second is broken.
struct PlayerTest : testing::Test {
  SimulatedProgram program;
  forms::LectMCI& form = program.screens().player;
  forms::EnrUneAnnonce& library = program.screens().announcements;
  std::string alias;

  PlayerTest() {
    program.memory.put("/d/ambiances/a & b.mp3", support::mp3Of(100));  // 2606 ms
    program.memory.put("/d/ambiances/c.mp3", "rien");
    program.memory.put("/d/ambiances/d.mp3", support::mp3Of(50));  // 1303 ms
    EXPECT_TRUE(program.start());
    form.File1.path = "/d/ambiances";
    form.File1.refresh();
    program.run("advance 0.5");
    form.CMspeed[0].click();
    form.VScroll1.value = 10;
    const std::string sent = media();
    alias = sent.substr(sent.find("Aform"));
    alias = alias.substr(0, alias.find(' '));
  }

  // The commands since the last call, a line each, without the queries of the position; the alias reads A.
  std::string media() {
    std::istringstream journal(program.run("journal media"));
    std::string sent;
    for (std::string line; std::getline(journal, line);) {
      std::string command = line.substr(line.find("\tmedia\t") + 7);
      if (command.find("position notify") != std::string::npos ||
          command.find("capture") != std::string::npos || command.find("video001") != std::string::npos ||
          command == "close all")
        continue;
      if (const auto at = alias.empty() ? std::string::npos : command.rfind(alias); at != std::string::npos)
        command.replace(at, alias.size(), "A");
      sent += command + "\n";
    }
    return sent;
  }
  void play(const std::string& path) {
    form.Text1.text = path;
    form.Timer2.enabled = true;
    program.run("advance 0.001");
  }
  void advance(const std::string& seconds) { program.run("advance " + seconds); }
};

TEST_F(PlayerTest, OpensInOrderAndTellsTheLength) {
  program.state().selectionEnCours = "oui";
  form.Check1.value = 1;
  play("  /d/ambiances/a & b.mp3 ");
  EXPECT_FALSE(form.Timer2.enabled);
  EXPECT_EQ(media(),
            "open MPEGVideo!/d/ambiances/a & b.mp3 alias A parent 0 Style 1073741824\nwhere A destination\n"
            "play A from 0\nset A audio all off\nset A time format milliseconds\nstatus A length\t2606\n");
  for (const std::string& shown :
       {form.Label1.caption.get(), library.Label7.caption.get(), program.state().dureeMusique}) {
    EXPECT_EQ(shown, "0:00:02.606");
  }
  advance("1");
  EXPECT_EQ(form.Label2.caption, library.Label5.caption.get());
  EXPECT_THAT(form.Label2.caption.get(), HasSubstr("0:00:00."));
  advance("5");
  EXPECT_TRUE(program.state().music.get().atEnd());
  EXPECT_EQ(library.Label5.caption, program.state().dureeMusique);  // stays there: a selection decides
  EXPECT_EQ(media(), "");
  form.Timer3.enabled = true;
  advance("0.001");
  EXPECT_EQ(media(), "stop A\nclose A\n");
  EXPECT_EQ(library.Label5.caption, "0:00:00.000");
  form.Command2.click();
  EXPECT_EQ(media(), "");
}

TEST_F(PlayerTest, RefusesWhatIsNotThere) {
  for (const char* path : {"", "   ", "/d/ambiances/absent.mp3"}) {
    program.run("journal");
    play(path);
    EXPECT_THAT(program.run("journal dialog"), HasSubstr(noPiece)) << path;
    EXPECT_EQ(media(), "");
  }
  play("/d/ambiances/c.mp3");
  EXPECT_EQ(form.Label1.caption, "0:00:01.000");  // a scale has to have a length
  advance("3");
  EXPECT_EQ(form.Label2.caption, "0:00:00.000");
}

TEST_F(PlayerTest, PausesByButtonTimersAndTheRidesOrders) {
  program.state().selectionEnCours = "oui";
  const std::string start = "set LectMCI.Text1.text /d/ambiances/a & b.mp3\nset LectMCI.Timer2.enabled 1";
  // A command, or an order of the ride; what is sent; the button's caption.
  const std::tuple<std::string, std::string, std::string> rows[] = {
      {"call LectMCI.Command5", "", "||"},
      {"oui", "play A\n", "||"},  // sent even if nothing is open
      {start, "open", "||"},
      {"call LectMCI.Command5", "stop A\n", "|>"},
      {"call LectMCI.CMspeed(2)", "", "|>"},
      {"call LectMCI.Command5", "play A\n", "||"},
      {"call LectMCI.CMspeed(2)", "set A speed 2000\n", "||"},
      {"non", "stop A\n", "|>"},
      {"autre", "", "|>"},
      {"oui", "play A\n", "||"},
      {"call LectMCI.Command10", "stop A\n", "|>"},
      {"call LectMCI.Command9", "play A\n", "||"},
      {"set LectMCI.Timer4.enabled 1", "stop A\n", "|>"},
      {"call LectMCI.Picture1", "play A\n", "||"},
      {"set LectMCI.Check1.value 1", "set A audio all off\n", "||"},
      {"set LectMCI.Check1.value 0", "set A audio all on\n", "||"},
      {"set LectMCI.Check3.value 1\nset LectMCI.Check4.value 0",
       "put A window at 0 0 250 250\nput A destination at 0 0 250 250\n"
       "put A window at 0 0 333 250\nput A destination at 0 0 333 250\n",
       "||"},
  };
  (void)media();
  for (const auto& [act, sent, caption] : rows) {
    if (act.find(' ') == std::string::npos) {
      program.state().musiqueSuit = act;
    } else {
      EXPECT_EQ(program.run(act), "");
    }
    advance("0.011");
    EXPECT_EQ(media().substr(0, sent == "open" ? sent.size() : std::string::npos), sent) << act;
    EXPECT_EQ(form.Command5.caption, caption) << act;
    if (program.state().musiqueSuit == "autre") program.state().musiqueSuit = "";
    EXPECT_EQ(program.state().musiqueSuit, "");
  }
}

TEST_F(PlayerTest, StepsThroughItsListUnlessASelectionDrives) {
  form.File1.doubleClick();
  EXPECT_EQ(media(), "");  // nothing is selected
  form.File1.index = 2;
  form.File1.key("Enter");
  EXPECT_THAT(media(), HasSubstr("open MPEGVideo!/d/ambiances/d.mp3 alias A "));
  EXPECT_EQ(library.Label6.caption, "d.mp3");
  advance("1.6");  // it ends, and the list goes on with its first
  EXPECT_EQ(form.File1.index, 0);
  EXPECT_THAT(media(), HasSubstr("stop A\nclose A\nopen MPEGVideo!/d/ambiances/a & b.mp3 alias A "));
  form.Command3.click();
  EXPECT_EQ(form.File1.index, 0);
  EXPECT_EQ(media(), "");
  form.Timer6.enabled = true;
  advance("0.001");
  EXPECT_EQ(form.File1.index, 1);
  form.Timer5.enabled = true;
  advance("0.001");
  EXPECT_EQ(form.File1.index, 0);
  library.Command12.enabled = true;
  form.File1.doubleClick();
  EXPECT_TRUE(library.Command12.enabled);
  library.visible = true;
  form.File1.index = -1;
  form.File1.doubleClick();
  EXPECT_FALSE(library.Command12.enabled);
}

TEST_F(PlayerTest, ChoosesWhatItsListShows) {
  program.memory.put("/d/ambiances/e.wav", "");
  program.memory.put("/d/ambiances/f.BMP", "");
  program.memory.put("/d/ambiances/g.mpg", "");
  const std::pair<const char*, std::size_t> rows[] = {{"F5", 3}, {"F10", 5}, {"F8", 1}, {"F9", 1}, {"x", 1}};
  for (const auto& [key, count] : rows) {
    form.File1.key(key);
    EXPECT_EQ(form.File1.lines().size(), count) << key;
  }
  EXPECT_EQ(media(), "");
  play("/d/ambiances/f.BMP");
  EXPECT_TRUE(form.AffBMP.visible);
  EXPECT_EQ(form.AffBMP.picture, "/d/ambiances/f.BMP");
  EXPECT_EQ(media(), "");
  form.Command2.click();
  EXPECT_FALSE(form.AffBMP.visible);
  program.run("answer cancel\ncall LectMCI.Command1");
  EXPECT_EQ(form.File1.path, "/d/ambiances");
  program.run("answer /e\ncall LectMCI.Command1");
  EXPECT_EQ(form.caption, "Navigation dans /e");
}

TEST_F(PlayerTest, FollowsTheMouseOnItsBars) {
  using Pointer = platform::PaintBar::Pointer;
  program.state().selectionEnCours = "oui";
  form.PicProgress.mouseDown(Pointer{100, 0, true});
  form.PicProgress.mouseUp(Pointer{100, 0, true});
  EXPECT_EQ(media(), "");
  play("/d/ambiances/a & b.mp3");
  (void)media();
  form.PicProgress.mouseDown(Pointer{1303.7, 0, true});
  EXPECT_FALSE(form.Timer1.enabled);
  EXPECT_EQ(form.PicProgress.strips.size(), 167U);  // half of 333
  EXPECT_EQ(form.PicProgress.strips.front(), platform::Colour::rgb(255, 255, 255));
  EXPECT_EQ(form.PicProgress.strips.back(), platform::Colour::rgb(255, 255, 128));
  form.PicProgress.mouseMove(Pointer{1000, 0, false});
  form.PicProgress.mouseUp(Pointer{1000, 0, false});
  EXPECT_EQ(media(), "stop A\nplay A from 1303\n");
  form.PicProgress.mouseMove(Pointer{500.9, 0, true});
  form.PicProgress.mouseUp(Pointer{501, 0, true});
  EXPECT_EQ(media(), "seek A to 500\nstop A\nplay A from 501\n");
  EXPECT_TRUE(form.Timer1.enabled);
  form.Command5.click();
  form.PicProgress.mouseDown(Pointer{10, 0, true});
  form.PicProgress.mouseMove(Pointer{20, 0, true});
  form.PicProgress.mouseUp(Pointer{30, 0, true});
  EXPECT_EQ(media(), "stop A\nstop A\nseek A to 30\n");
  form.PicVolume.mouseMove(Pointer{0, 0.5, false});
  form.PicVolume.mouseMove(Pointer{0, 0.5, true});
  form.PicVolume.mouseUp(Pointer{0, -0.2, true});
  form.VScroll1.value = 55;
  EXPECT_EQ(media(), "setaudio A volume to 500\nsetaudio A volume to 0\nsetaudio A volume to 550\n");
  EXPECT_EQ(form.Label3.caption, "5.5");
  EXPECT_EQ(form.PicVolume.strips.size(), 55U);
}

}  // namespace
