// A list that is not saved outlives the program, however that ends.
#include <gmock/gmock.h>

#include "support/session_bytes.h"
#include "support/simulated_program.h"

namespace {

using support::SimulatedProgram;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string own = "/d/brouillon.tq2";
const std::string kept = "Une liste non enregistrée du 04/10 à 12:00 a été gardée";

// A program on what another one left behind when it died.
struct After : SimulatedProgram {
  explicit After(const rehearsal::MemoryFileSystem& left) : SimulatedProgram(std::string()) {
    memory.files = left.files;
    EXPECT_TRUE(start());
  }
};

struct Drafts : testing::Test {
  Drafts() {
    program.memory.put("/d/chronodat/Essai.tq2", support::session(2, 2).replace(71, 4, "Oui2"));
    EXPECT_TRUE(program.start());
  }
  [[nodiscard]] bool lies() const { return program.memory.exists(own); }

  SimulatedProgram program;
};

std::string listOf(SimulatedProgram& program) {
  return program.run(
      "rows CreerCycle.ListView1\nget CreerCycle.Label8\nget CreerCycle.Label9\nget MainForm.MyFrame1\n"
      "get CreerCycle.MyButton3\nget CreerCycle.MyButton4\nvar seanceTitre");
}

const std::string rows = support::composeTwoRows("Plat", "10", "Sprint", "20");

TEST_F(Drafts, BringTheListBackAsItWas) {
  const std::string essai = "answer Essai.tq2\npress CreerCycle.MyButton4\n";
  for (const std::string& made : {rows, rows + "press CreerCycle.MyButton1\n", rows + essai,
                                  "press MainForm.mnCreat\npress CreerCycle.MyButton3\n" + essai + essai,
                                  rows + "set CreerCycle.Label8.caption a\\tb\\\\\\n\n"}) {
    SimulatedProgram first;
    first.memory.files = program.memory.files;
    ASSERT_TRUE(first.start());
    first.run(made + "advance 2");
    const std::string before = listOf(first);
    After next(first.memory);
    next.run("press MainForm.mnCreat");
    EXPECT_EQ(next.run("get CreerCycle.DraftText"), kept + "\n") << made;
    next.run("press CreerCycle.DraftResume");
    EXPECT_EQ(listOf(next), before) << made;
    EXPECT_EQ(next.run("get CreerCycle.DraftBar.visible"), "0\n");
    // It is still not saved; and taking it up is a step that can be undone.
    next.run("advance 2");
    EXPECT_TRUE(next.memory.exists(own));
    next.run("press CreerCycle.mnUndo");
    EXPECT_EQ(next.list().rowCount(), 2);
  }
}

TEST_F(Drafts, LieThereOnlyWhileTheListIsNotSaved) {
  const std::string load = "press MainForm.mnCreat\nanswer Essai.tq2\npress CreerCycle.MyButton4\nadvance 3";
  struct Case {
    std::string commands;
    bool kept;
  };
  for (const Case& row :
       {Case{"press MainForm.mnCreat\nadvance 3", false}, Case{rows + "advance 2", true},
        Case{rows + "advance 2\nanswer Neuve\npress CreerCycle.Command6", false},
        Case{rows + "advance 2\npress CreerCycle.Command4\nadvance 2", false},
        Case{rows + "advance 2\npress CreerCycle.Command4\npress CreerCycle.mnUndo\nadvance 2", true},
        Case{load, false}, Case{load + "\nanswer Essai.tq2\npress CreerCycle.MyButton4\nadvance 2", true}}) {
    SimulatedProgram first;
    first.memory.files = program.memory.files;
    ASSERT_TRUE(first.start());
    first.run(row.commands);
    EXPECT_EQ(first.memory.exists(own), row.kept) << row.commands;
  }
}

TEST_F(Drafts, AreWrittenAtTheEndAndNotWhileASequenceCountsDown) {
  program.run(rows +
              "advance 2\npress CreerCycle.MyButton5\nadvance 0.3\npress MainForm.MyButton3\nadvance 12");
  program.memory.calls.clear();
  program.screens().editor.sessionHandedIn("/d/chronodat/Essai.tq2");
  program.run("advance 4");
  EXPECT_THAT(program.memory.calls, testing::Each(testing::Not(HasSubstr("brouillon"))));
  program.program().end();
  After next(program.memory);
  next.run("press MainForm.mnCreat\npress CreerCycle.DraftResume");
  EXPECT_THAT(next.run("rows CreerCycle.ListView1"), HasSubstr("Essai (2/2)"));
  program.run("press MainForm.Command7\nadvance 2");
  EXPECT_TRUE(lies());
}

TEST_F(Drafts, OfALaterListDoNotReplaceAnOlderOne) {
  program.run(rows + "advance 2");
  After second(program.memory);
  second.run(support::composeTwoRows("Force 3", "10", "Force 3", "20") + "advance 2");
  After third(second.memory);
  third.run("press MainForm.mnCreat\npress CreerCycle.DraftForget");
  EXPECT_EQ(third.run("get CreerCycle.DraftBar.visible"), "1\n") << "the older one";
  // A list in hand is put aside for the one that is taken up.
  third.run("cell CreerCycle.ListView1 2 4\npick CreerCycle.Combo1 Montée\npress CreerCycle.DraftResume");
  EXPECT_THAT(third.run("rows CreerCycle.ListView1"), HasSubstr("Sprint"));
  third.run("press CreerCycle.DraftResume");
  EXPECT_THAT(third.run("rows CreerCycle.ListView1"), HasSubstr("Montée"));
}

TEST_F(Drafts, CutShortGiveTheSequencesThatAreLeft) {
  program.run(rows + "advance 2");
  const std::string whole = *program.memory.files.at(own);
  for (std::size_t length = 0; length < whole.size(); length += length < 450 ? 37 : 13) {
    program.memory.put(own, whole.substr(0, length));
    After next(program.memory);
    next.run("press MainForm.mnCreat\npress CreerCycle.DraftResume\nadvance 2");
    EXPECT_TRUE(length < 450 || next.run("rows CreerCycle.ListView1").find("Sprint") != std::string::npos);
    EXPECT_EQ(next.run("get MainForm.MyButton1"), "Start\n");
  }
}

TEST_F(Drafts, ThatCannotBeWrittenAreToldWithoutADialog) {
  program.disk.failFrom(support::FaultyFileSystem::Call::Write, 1);
  program.run(rows + "journal\nadvance 2");
  EXPECT_THAT(program.run("get CreerCycle.DraftText"), HasSubstr("La liste n'a pas pu être gardée."));
  EXPECT_THAT(program.run("journal dialog"), IsEmpty());
  program.disk.heal();
  program.run("advance 31");
  EXPECT_TRUE(lies());
  EXPECT_EQ(program.run("get CreerCycle.DraftBar.visible"), "0\n");
}

}  // namespace
