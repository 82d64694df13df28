// The recording page: takes, stored announcements, the listening level.
#include <gmock/gmock.h>

#include <regex>

#include "support/simulated_program.h"

namespace {

using support::FaultyFileSystem;
using support::SimulatedProgram;
using testing::HasSubstr;

struct RecordingPage : testing::Test {
  RecordingPage() {
    EXPECT_TRUE(program.start());
    program.run("press MainForm.mnEnrAnnVocale\nadvance 0.5\njournal");
  }
  // What was sent to the media since the last look, without the times.
  std::string sent() {
    return std::regex_replace(program.run("journal media"), std::regex("[0-9.]+\tmedia\t"), "");
  }
  // A digit each for Command2, MyButton10, Command3, Command4 and Command1.
  std::string buttons() const {
    std::string flags;
    for (const auto* one : {&form.Command2, &form.MyButton10, &form.Command3, &form.Command4, &form.Command1})
      flags += one->enabled ? '1' : '0';
    return flags;
  }
  std::string saved(const std::string& name) const {
    const auto found = program.memory.files.find("/d/annonces/" + name);
    return found == program.memory.files.end() ? std::string() : *found->second;
  }

  SimulatedProgram program;
  forms::EnrUneAnnonce& form = program.screens().announcements;
};

TEST_F(RecordingPage, ATakeIsStoppedPlayedBackOnceAndSaved) {
  EXPECT_EQ(buttons(), "11000");
  program.run("press EnrUneAnnonce.Command2");
  EXPECT_EQ(buttons(), "00100");
  EXPECT_EQ(sent(),
            "close all\nopen new type waveaudio alias capture\nseek capture to start\n"
            "set capture samplespersec 11025\nset capture bitspersample 8\nset capture channels 1\n"
            "record capture\n");
  program.run("advance 4");
  EXPECT_EQ(form.Label14.caption, "Durée de l'Annonce (4 secondes)");
  EXPECT_EQ(form.Label1.caption, " Enregistrement en Cours");
  EXPECT_EQ(form.Label3.caption,
            "Milliseconds = 4000\nMo = 0.04 Mo\nChannels = 1 (mono)\nBits per sample = 8\n"
            "Bytes per second = 11025\n");
  program.run("press EnrUneAnnonce.Command3\nadvance 1");
  EXPECT_EQ(buttons(), "00011");  // by itself it listens to the take
  EXPECT_EQ(form.Command3.caption, "Enregistrement Stoppé");
  EXPECT_THAT(form.Label14.caption.get(), HasSubstr("en Lecture ("));
  EXPECT_FALSE(form.Timer1.enabled);
  program.run("advance 8");
  EXPECT_EQ(form.Label14.caption, "Lecture Stoppée");
  EXPECT_EQ(buttons(), "11011");
  program.run("press EnrUneAnnonce.Command4\nadvance 0.5");
  EXPECT_EQ(buttons(), "00011");
  program.run("press EnrUneAnnonce.Command4");
  EXPECT_EQ(buttons(), "11011");
  program.run(
      "journal\nanswer cancel\npress EnrUneAnnonce.Command1\nanswer Bravo.WAV\n"
      "press EnrUneAnnonce.Command1");
  EXPECT_EQ(buttons(), "11011");  // a name refused without a word
  EXPECT_THAT(program.run("journal dialog"), HasSubstr("Annonce du 04 10 24 à 12 00 1"));
  program.run("answer /elsewhere/Bravo\npress EnrUneAnnonce.Command1");
  EXPECT_EQ(buttons(), "11010");
  EXPECT_EQ(form.Label14.caption, "(Bravo)Enregistrée");
  EXPECT_EQ(saved("Bravo.wav").size(), 44 + 4 * 11025U);
  program.run(
      "answer Encore.wav\npress EnrUneAnnonce.Command4\npress EnrUneAnnonce.Command4\n"
      "press EnrUneAnnonce.Command1");
  EXPECT_EQ(saved("Encore.wav"), saved("Bravo.wav"));
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
}

TEST_F(RecordingPage, EndsATakeAfterThirtySecondsAndWithoutAMicrophone) {
  program.run("press EnrUneAnnonce.Command2\nadvance 29.9");
  EXPECT_EQ(buttons(), "00100");
  program.run("advance 0.2");  // stopped, and played back by itself
  EXPECT_EQ(buttons(), "00011");
  EXPECT_EQ(form.Command3.caption, "Enregistrement Stoppé");
  program.run("press EnrUneAnnonce.Command4\nanswer Long\npress EnrUneAnnonce.Command1");
  EXPECT_NEAR(static_cast<double>(saved("Long.wav").size()), 30.5 * 11025, 0.6 * 11025);
  program.run("microphone off\npress EnrUneAnnonce.Command2\nadvance 0.1");
  EXPECT_EQ(buttons(), "00100");
  program.run("advance 5");
  EXPECT_EQ(buttons(), "11011");
  EXPECT_EQ(form.Label14.caption, "Lecture Stoppée");
}

TEST_F(RecordingPage, OverMusicItNeedsMusic) {
  program.run("press EnrUneAnnonce.MyButton10\nadvance 1");
  EXPECT_EQ(buttons(), "10000");
  EXPECT_EQ(sent(), "");
  program.run(
      "set EnrUneAnnonce.MyButton10.enabled 1\nset EnrUneAnnonce.Label6.caption Air.mp3\n"
      "press EnrUneAnnonce.MyButton10\nadvance 0.01");
  EXPECT_EQ(buttons(), "00100");
  EXPECT_FALSE(form.Timer7.enabled);
  EXPECT_THAT(program.run("journal"), HasSubstr("Aucune Musique d'Ambiance Sélectionnée..."));  // "Play"
}

TEST_F(RecordingPage, AStoredAnnouncementPlaysPausesAndIsDestroyed) {
  program.run("answer cancel\npress EnrUneAnnonce.Command6");
  EXPECT_EQ(form.Label15.caption, "");
  program.run(
      "press EnrUneAnnonce.Command2\nadvance 2\npress EnrUneAnnonce.Command3\nadvance 9\n"
      "answer Allez.wav\npress EnrUneAnnonce.Command1\njournal\n"
      "answer Allez.wav\npress EnrUneAnnonce.Command6");
  EXPECT_EQ(sent(),
            "stop video001\nclose video001\n"
            "open MPEGVideo!/d/annonces/Allez.wav alias video001 parent 0 Style 1073741824\n"
            "play video001 from 0\nset video001 time format milliseconds\nstatus video001 length\t2000\n");
  EXPECT_EQ(form.Label9.caption, "(Allez)");
  EXPECT_EQ(form.Label16.caption, "00:00:02.000");
  program.run("advance 1");
  EXPECT_EQ(form.Label17.caption, "00:00:01.000");
  program.run("press EnrUneAnnonce.Command15\nadvance 1");
  EXPECT_EQ(form.Label17.caption, "00:00:01.000");
  program.run("press EnrUneAnnonce.Command7\nadvance 1");
  EXPECT_EQ(form.Label17.caption, "00:00:02.000");
  EXPECT_FALSE(form.Timer9.enabled);
  EXPECT_FALSE(form.Command14.enabled);
  program.run("press EnrUneAnnonce.MyButton5\nadvance 0.5\npress EnrUneAnnonce.Command14");
  EXPECT_EQ(form.Label16.caption, "");
  program.run("journal\npress EnrUneAnnonce.MyButton8");
  EXPECT_EQ(saved("Allez.wav"), "");
  EXPECT_EQ(program.run("journal dialog"), "");
  EXPECT_EQ(form.Label9.caption, "Lire une Annonce Enregistrée");
  EXPECT_FALSE(form.MyButton8.enabled);
  EXPECT_FALSE(form.MyButton5.enabled);
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

TEST_F(RecordingPage, FadesRunToTheEndOrUntilTheBarIsMoved) {
  EXPECT_EQ(form.MyFrame2.caption, "Volume 6");
  program.run("press EnrUneAnnonce.MyButton1\nadvance 0.5");
  EXPECT_EQ(form.VScroll1.value, 2);
  EXPECT_FALSE(form.MyButton1.enabled);
  EXPECT_EQ(form.Command3.caption, "Enregistrement Stoppé");
  program.run("advance 0.3");
  EXPECT_EQ(form.VScroll1.value, 1);
  EXPECT_TRUE(form.MyButton1.enabled);
  EXPECT_FALSE(form.Timer5.enabled);
  program.run("press EnrUneAnnonce.MyButton2\nadvance 0.2\nscroll EnrUneAnnonce.VScroll1 5\nadvance 1");
  EXPECT_EQ(form.VScroll1.value, 5);
  program.run("press EnrUneAnnonce.MyButton2\nadvance 1");
  EXPECT_EQ(form.VScroll1.value, 11);
  program.run(
      "press EnrUneAnnonce.Image5\npress EnrUneAnnonce.MyButton14\npress EnrUneAnnonce.MyButton3\n"
      "press EnrUneAnnonce.MyButton7");
  EXPECT_THAT(program.run("journal shell"), HasSubstr("shell\t"));
  EXPECT_EQ(program.run("forms"), "MainForm\n");
  EXPECT_EQ(form.VScroll1.value, 7);
}

}  // namespace
