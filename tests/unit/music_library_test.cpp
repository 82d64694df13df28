// The music library: import, ticks, the selection that plays, deletion, and the ways in and out.
#include <gmock/gmock.h>

#include <fstream>

#include "support/media_files.h"
#include "support/simulated_program.h"

namespace {

using support::FaultyFileSystem;
using support::SimulatedProgram;
using testing::ElementsAre;
using testing::HasSubstr;

// The player finds the kind of a file from its bytes, whatever its name.
std::string piece(int seconds) {
  return support::wavOf(1000 * seconds);
}

struct Library : testing::Test {
  Library() {
    for (int i = 0; i < 3; ++i)
      program.memory.put("/d/ambiances/" + std::string(1, static_cast<char>('a' + i)) + ".mp3", piece(3 + i));
    EXPECT_TRUE(program.start());
    program.run("press MainForm.mnambiance");
  }
  std::string checks() const {
    std::string flags;
    for (int row = 1; row <= form.ListView1.rowCount(); ++row)
      flags += form.ListView1.checked(row) ? '1' : '0';
    return flags;
  }
  std::string playing() {
    const std::string& path = program.screens().player.Text1.text;
    return path.substr(path.rfind('/') + 1);
  }

  SimulatedProgram program;
  forms::EnrUneAnnonce& form = program.screens().announcements;
};

TEST_F(Library, TicksDriveTheStartButtonAndTheTwoBoxes) {
  program.run("press EnrUneAnnonce.Command8");
  EXPECT_EQ(form.Label22.caption, "(3) Musiques d'Ambiances Sélectionnables");
  EXPECT_FALSE(form.MyButton12.enabled);
  program.run("tick EnrUneAnnonce.Check2 1");
  EXPECT_EQ(form.Check2.value, 0);  // nothing to repeat
  const struct {
    const char* hands;
    const char* ticks;
    int all, repeat, selected;
  } steps[] = {{"checkrow EnrUneAnnonce.ListView1 2 1", "010", 2, 0, 1},
               {"tick EnrUneAnnonce.Check2 1", "010", 2, 2, 1},
               {"tick EnrUneAnnonce.Check2 0", "010", 2, 2, 1},
               {"tick EnrUneAnnonce.Check1 1", "111", 1, 2, 3},
               {"checkrow EnrUneAnnonce.ListView1 1 0", "011", 2, 2, 2},
               {"press EnrUneAnnonce.Check1", "111", 1, 2, 3},
               {"checkrow EnrUneAnnonce.ListView1 1 0", "011", 2, 2, 2},
               {"press EnrUneAnnonce.MyButton11\npress EnrUneAnnonce.Command8", "011", 2, 2, 2},
               {"tick EnrUneAnnonce.Check1 0", "000", 0, 0, 0}};
  for (const auto& [hands, ticks, all, repeat, selected] : steps) {
    program.run(hands);
    EXPECT_EQ(checks(), ticks) << hands;
    EXPECT_EQ(form.Check1.value, all) << hands;
    EXPECT_EQ(form.Check2.value, repeat) << hands;
    EXPECT_THAT(form.MyButton12.caption.get(),
                HasSubstr(selected == 0 ? "Aucune Musique" : "(" + std::to_string(selected) + ") Musiques"));
  }
}

TEST_F(Library, ARowTakenOutCountsAsTickedAndAMissingFileIsTold) {
  program.run(
      "press EnrUneAnnonce.Command8\ntick EnrUneAnnonce.Check1 1\ncheckrow EnrUneAnnonce.ListView1 1 0\n"
      "cell EnrUneAnnonce.ListView1 1 2 right\npress EnrUneAnnonce.mnsupprim");
  EXPECT_EQ(form.MyButton12.caption, "Démarrer la Liste des (1) Musiques Sélectionnées");
  EXPECT_EQ(form.ListView1.selectedRow(), 1);
  program.memory.files.erase("/d/ambiances/c.mp3");
  EXPECT_THAT(
      program.run("cell EnrUneAnnonce.ListView1 2 1 right\npress EnrUneAnnonce.mnEcouter\njournal dialog"),
      HasSubstr("Cette Musique a été Supprimée..."));
  program.memory.put("/d/ambiances/x.wma", "");
  program.run("cell EnrUneAnnonce.ListView1 1 1 right\npress EnrUneAnnonce.mnSupTotBiblioth");
  EXPECT_THAT(program.memory.list("/d/ambiances"), ElementsAre("x.wma"));
}

TEST_F(Library, EmptyingTheListDestroysTheAnnouncementThatIsOpen) {
  program.memory.put("/d/annonces/Allez.wav", piece(2));
  program.run(
      "press EnrUneAnnonce.MyButton9\npress MainForm.mnEnrAnnVocale\nanswer Allez.wav\n"
      "press EnrUneAnnonce.Command6\npress EnrUneAnnonce.MyButton7\npress MainForm.mnSelctMusiqPrefere\n"
      "advance 0.1\ncell EnrUneAnnonce.ListView1 1 2 right\npress EnrUneAnnonce.mnViderListe");
  EXPECT_EQ(form.ListView1.rowCount(), 0);
  EXPECT_FALSE(program.memory.exists("/d/annonces/Allez.wav"));
}

TEST_F(Library, ImportCopiesWhatIsNewAndTellsOfTheRest) {
  program.run("press EnrUneAnnonce.Command8\ntick EnrUneAnnonce.Check1 1\npress EnrUneAnnonce.MyButton11");
  for (const char* name : {"a.mp3", "d.mp3", "e.wma"})
    program.memory.put(std::string("/m/") + name, piece(9));
  program.run("journal\nanswer /m/a.mp3|/m/d.mp3|/m/e.wma\npress EnrUneAnnonce.MyButton4");
  EXPECT_THAT(program.run("journal dialog"),
              HasSubstr("Cette Musique (a.mp3) est déjà présente dans votre Bibliothèque..."));
  EXPECT_THAT(program.memory.list("/d/ambiances"), ElementsAre("a.mp3", "b.mp3", "c.mp3", "d.mp3", "e.wma"));
  EXPECT_EQ(*program.memory.files.at("/d/ambiances/a.mp3"), piece(3));
  EXPECT_EQ(*program.memory.files.at("/d/ambiances/d.mp3"), piece(9));
  EXPECT_EQ(checks(), "0000");
  EXPECT_EQ(form.Label20.caption, "Actuellement (4) Musiques d'Ambiances dans votre Bibliothèque Musicale");
  EXPECT_FALSE(form.MyFrame6.visible);
  program.run("answer cancel\npress EnrUneAnnonce.MyButton4");
  EXPECT_EQ(form.ListView1.rowCount(), 0);
}

TEST_F(Library, AnImportThatFailsOrIsGivenUpLeavesNoHalfFile) {
  const std::string big(3 * 1024 * 1024, 'm');
  for (const char* name : {"d.mp3", "e.mp3", "f.mp3"}) program.memory.put(std::string("/m/") + name, big);
  program.disk.failFrom(FaultyFileSystem::Call::Write, 5);  // in the third file; the first cannot be read
  program.run("journal\nanswer /m/gone.mp3|/m/d.mp3|/m/e.mp3\npress EnrUneAnnonce.MyButton4");
  EXPECT_THAT(program.run("journal fault"), HasSubstr("Musiques non copiées : gone.mp3, e.mp3."));
  EXPECT_THAT(program.memory.list("/d/ambiances"), ElementsAre("a.mp3", "b.mp3", "c.mp3", "d.mp3"));
  EXPECT_EQ(form.ListView1.rowCount(), 4);
  EXPECT_TRUE(form.MyButton4.enabled);
  program.disk.heal();
  std::vector<int> shown;
  form.ProgressBar1.watch([&](platform::Component&, platform::Prop) {
    shown.push_back(form.ProgressBar1.value);
    EXPECT_TRUE(platform::canBeSeen(form.MyButton16));
    EXPECT_FALSE(form.MyButton4.enabled);
    if (form.ProgressBar1.value >= 50) form.MyButton16.click();
  });
  program.run("answer /m/e.mp3|/m/f.mp3\npress EnrUneAnnonce.MyButton4");
  EXPECT_THAT(program.memory.list("/d/ambiances"), ElementsAre("a.mp3", "b.mp3", "c.mp3", "d.mp3"));
  EXPECT_THAT(shown, ElementsAre(0, 16, 33, 50));
  EXPECT_EQ(program.run("journal fault"), "");
}

TEST_F(Library, ALongNameShrinks) {
  program.memory.put("/d/ambiances/" + std::string(60, 'n') + ".mp3", piece(9));
  program.run(
      "press EnrUneAnnonce.Command8\ncheckrow EnrUneAnnonce.ListView1 4 1\npress EnrUneAnnonce.MyButton12");
  EXPECT_LT(form.Label23.size, 14);
  EXPECT_EQ(form.Label23.size, form.Label6.size);
}

// The watch looks each second, also between the order for a piece and its opening.
TEST_F(Library, BeginsWithTheFirstPieceAtAnyMoment) {
  program.run("press EnrUneAnnonce.Command8\ntick EnrUneAnnonce.Check1 1");
  for (const char* untilJustBefore : {"0.999", "3.5"}) {
    program.run("advance " + std::string(untilJustBefore) + "\npress EnrUneAnnonce.MyButton12\nadvance 0.5");
    EXPECT_EQ(playing(), "a.mp3") << untilJustBefore;
  }
}

// A ride over the music "b", four seconds long, which repeats.
struct MusicRide : Library {
  MusicRide() {
    std::ifstream file(std::string(VENTORIA_SOURCE_DIR) + "/tests/data/Col.du.matin.tq2", std::ios::binary);
    program.memory.put("/d/chronodat/Col.tq2", {std::istreambuf_iterator<char>(file), {}});
    program.run(
        "press EnrUneAnnonce.Command8\ncheckrow EnrUneAnnonce.ListView1 2 1\ntick EnrUneAnnonce.Check2 1\n"
        "press EnrUneAnnonce.MyButton11\npress EnrUneAnnonce.MyButton9\npress MainForm.mnsons\n"
        "tick MainForm.Check2 1\ntick MainForm.Check8 1\npress MainForm.MyButton6\npress MainForm.mnCreat\n"
        "answer Col.tq2\npress CreerCycle.MyButton4\npress CreerCycle.MyButton5\nadvance 0.1");
    program.screens().main.Combo5.text = "2";
  }
  void chooseMode(const std::string& box) {
    program.run("press MainForm.mnsons\ntick MainForm." + box + " 1\npress MainForm.MyButton6\njournal");
  }
  // Prompts ("v") and commands to the music ("play", "stop", "open") in their order.
  std::string heard() {
    std::istringstream lines(program.run("journal"));
    std::string all;
    for (std::string line; std::getline(lines, line);) {
      if (line.find("\tprompt\t") != std::string::npos) all += all.ends_with("v ") ? "" : "v ";
      for (const char* order : {"play", "stop", "open"}) {
        if (line.find(std::string("\tmedia\t") + order + " ") != std::string::npos)
          all += std::string(order) + " ";
      }
    }
    return all;
  }
};

TEST_F(MusicRide, StartsWithTheRideAndYieldsToTheVoice) {
  EXPECT_TRUE(program.screens().main.MyButton19.visible);
  chooseMode("Check10");
  EXPECT_EQ(playing(), "");
  program.run("press MainForm.MyButton3\nadvance 12");
  // From "open" on a stop before each prompt; the last three play the piece again after its end.
  EXPECT_EQ(heard(), "v stop v open play stop v stop v play stop v play stop open play ");
  EXPECT_EQ(playing(), "b.mp3");
  EXPECT_TRUE(program.screens().main.MyButton21.visible);
}

TEST_F(MusicRide, PlaysOnUnderTheVoiceInTheOtherMode) {
  chooseMode("Check11");
  program.run("press MainForm.MyButton3\nadvance 12");
  // Only the start countdown silences it; after each boundary it is told to play, and "stop open play" is the
  // piece starting again.
  EXPECT_EQ(heard(), "v stop v open play v play stop open play v stop open play ");
  const forms::MainForm& main = program.screens().main;
  EXPECT_FALSE(main.MyButton19.visible);
  program.run("press MainForm.MyButton5\npress CreerCycle.MyButton5\nadvance 0.1");
  EXPECT_THAT(heard(), testing::EndsWith("stop "));
  EXPECT_TRUE(main.MyButton19.visible);
  EXPECT_FALSE(main.MyButton21.visible);
  for (const char* stop : {"MyButton21", "mnEnrAnnVocale"}) {
    program.run("press MainForm.MyButton19\nadvance 3");
    EXPECT_TRUE(main.MyButton21.visible);
    program.run("press MainForm." + std::string(stop) + "\nadvance 0.1");
    EXPECT_THAT(heard(), testing::EndsWith("stop ")) << stop;
    EXPECT_TRUE(main.MyButton19.visible) << stop;
  }
}

TEST_F(Library, LeavingItWithAnEmptyListUnloadsThePage) {
  program.run("press EnrUneAnnonce.MyButton9");
  EXPECT_FALSE(form.loaded());
  program.memory.put("/d/ambiances/late.mp3", piece(3));
  program.run("press MainForm.mnEnrAnnVocale");
  EXPECT_EQ(form.File1.lines().size(), 4U);
  EXPECT_TRUE(form.Timer2.enabled);
}

}  // namespace
