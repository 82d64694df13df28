// The recording page: what a take leaves on the disk, and the listening level.
#include <gmock/gmock.h>

#include <regex>

#include "announcements/listening_level.h"
#include "support/rig.h"
#include "support/simulated_program.h"

namespace {

using support::FaultyFileSystem;
using support::SimulatedProgram;

struct RecordingPage : testing::Test {
  RecordingPage() {
    EXPECT_TRUE(program.start());
    program.run("press MainForm.mnEnrAnnVocale\nadvance 0.5\njournal");
  }
  std::string saved(const std::string& name) const {
    const auto found = program.memory.files.find("/d/annonces/" + name);
    return found == program.memory.files.end() ? std::string() : *found->second;
  }

  SimulatedProgram program;
  forms::EnrUneAnnonce& form = program.screens().announcements;
};

TEST_F(RecordingPage, ATakeIsSavedAsItWasRecordedAsOftenAsWanted) {
  program.run("press EnrUneAnnonce.Command2");
  EXPECT_EQ(std::regex_replace(program.run("journal media"), std::regex("[0-9.]+\tmedia\t"), ""),
            "close all\nopen new type waveaudio alias capture\nseek capture to start\n"
            "set capture samplespersec 11025\nset capture bitspersample 8\nset capture channels 1\n"
            "record capture\n");
  const model::Take& take = program.state().take;
  program.run("advance 4");
  EXPECT_EQ(take.seconds, 4);
  program.run(
      "press EnrUneAnnonce.Command3\nadvance 9\nanswer /elsewhere/Bravo\npress EnrUneAnnonce.Command1");
  EXPECT_EQ(take.length, 4000);
  EXPECT_EQ(take.file, "/d/annonces/Bravo.wav");
  EXPECT_EQ(saved("Bravo.wav").size(), 44 + 4 * 11025U);
  program.run(
      "answer Encore.wav\npress EnrUneAnnonce.Command4\npress EnrUneAnnonce.Command4\n"
      "press EnrUneAnnonce.Command1");
  EXPECT_EQ(saved("Encore.wav"), saved("Bravo.wav"));
  program.run("answer Encore.wav\npress EnrUneAnnonce.Command6\nadvance 2");
  EXPECT_NEAR(program.state().announcement.share(), 0.5, 0.05);
  program.run("advance 3\npress EnrUneAnnonce.Command2");
  EXPECT_EQ(program.state().announcement.share(), 1);
  EXPECT_EQ(take.file, "");
}

TEST_F(RecordingPage, AsksBeforeReplacingAndPassesOverAFullDisk) {
  program.memory.put("/d/annonces/Bravo.wav", "old");
  program.run("press EnrUneAnnonce.Command2\nadvance 1\npress EnrUneAnnonce.Command3\nadvance 9\njournal");
  program.run("answer Bravo\nanswer cancel\nanswer cancel\npress EnrUneAnnonce.Command1");
  EXPECT_EQ(saved("Bravo.wav"), "old");
  program.disk.failFrom(FaultyFileSystem::Call::Write, 2);
  program.run("answer Bravo\nanswer ok\npress EnrUneAnnonce.Command1");
  EXPECT_EQ(saved("Bravo.wav"), "old");
  EXPECT_EQ(program.run("journal fault"), "");
  EXPECT_EQ(program.disk.list("/d/annonces").size(), 2U);  // and the scratch file, nothing half copied
  EXPECT_EQ(form.Label14.caption, "(Bravo) n'a pas pu être écrite sur le Disque");
  program.disk.heal();
  program.run("answer Autre\npress EnrUneAnnonce.Command1");
  EXPECT_EQ(form.Label14.caption, "(Autre)Enregistrée");
  EXPECT_EQ(saved("Autre.wav").size(), 45 + 11025U);  // padded to an even length
  // If the scratch file cannot be written, the older one is not saved in its place.
  program.run("press EnrUneAnnonce.MyButton7\nanswer Rien\ncall EnrUneAnnonce.Command1");
  EXPECT_EQ(saved("Rien.wav"), "");
}

TEST_F(RecordingPage, TellsWhyAnAnnouncementDoesNotOpen) {
  program.memory.put("/d/annonces/Bravo.wav", "damaged");
  const char* open = "answer Bravo.wav\npress EnrUneAnnonce.Command6\njournal dialog";
  EXPECT_THAT(program.run(open), testing::HasSubstr("Erreur de Format ou Fichier Endommagé..."));
  program.disk.failFrom(FaultyFileSystem::Call::Open, 1);
  EXPECT_THAT(program.run(open), testing::HasSubstr("ERR #75\tImpossible d'ouvrir"));
}

// A wait for a take that was discarded changes nothing afterwards: whenever the rider leaves there is nothing
// to save, and whenever he begins a new take it runs on.
TEST_F(RecordingPage, LeavingOrATakeAnewMayComeAtAnyMoment) {
  for (int tenths = 1; tenths < 90; ++tenths) {
    for (const platform::Button* button : {&form.MyButton7, &form.Command2}) {
      SCOPED_TRACE(button->name() + " " + std::to_string(tenths));
      program.run("press EnrUneAnnonce.Command2");
      const auto due = program.loop().clock().now() + std::chrono::milliseconds(100 * tenths);
      program.loop().onInput([&, pressed = false]() mutable {
        if (pressed || program.loop().clock().now() < due || !button->enabled) return;
        pressed = true;
        button->click();
      });
      program.run("advance 2\npress EnrUneAnnonce.Command3\nadvance 10");
      program.loop().onInput({});
      const bool left = button == &form.MyButton7;
      EXPECT_EQ(form.Timer3.enabled, !left);
      EXPECT_EQ(form.Command2.enabled, left);
      EXPECT_EQ(form.Command4.caption, "Ecouter l'Annonce Enregistrée");
      for (const auto* closed : {&form.Command1, &form.Command4}) EXPECT_FALSE(closed->enabled);
      if (!left) program.run("press EnrUneAnnonce.MyButton7");
      program.run("press MainForm.mnEnrAnnVocale");
    }
  }
}

TEST_F(RecordingPage, TheLevelFollowsItsTable) {
  const struct {
    int level, balance;
    const char* both;
  } cells[] = {{1, 0, "0000 0000"},  {2, -2, "2828 0000"}, {2, 1, "1192 2828"},  {3, -1, "5050 2D2D"},
               {4, 2, "0000 7C7C"},  {5, 1, "495A A7A7"},  {6, -1, "D3D3 5CAD"}, {6, 1, "5CAD D3D3"},
               {7, -2, "FFFF 0000"}, {7, -1, "FFFF 9000"}, {7, 0, "FFFF FFFF"},  {8, 0, ""},
               {11, -2, ""}};
  for (const auto& cell : cells) {
    program.run("scroll EnrUneAnnonce.VScroll1 " + std::to_string(cell.level) +
                "\nscroll EnrUneAnnonce.HScroll1 " + std::to_string(cell.balance) + "\njournal");
    const std::string level = program.run("advance 0.1\njournal level");
    EXPECT_EQ(level.substr(std::min(level.size(), level.rfind('\t') + 1)),
              *cell.both == '\0' ? "" : std::string(cell.both) + "\n");
    EXPECT_EQ(form.MyFrame2.caption, "Volume " + std::to_string(cell.level - 1));
  }
}

TEST(ListeningLevel, IsToldAgainUntilTheDeviceHasIt) {
  support::Rig rig;
  const announcements::ListeningLevel level(rig.context);
  rig.level.there = false;
  rig.screens.announcements.load();
  rig.advance(1000);
  EXPECT_EQ(rig.level.told, 10);
  rig.level.there = true;
  rig.advance(1000);
  EXPECT_EQ(rig.level.told, 11);
  rig.screens.announcements.VScroll1.value = 3;
  rig.advance(1000);
  EXPECT_EQ(rig.level.told, 12);
}

}  // namespace
