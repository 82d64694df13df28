// A rehearsal tells what the ride then does, and nothing of the rider's is touched by it.
#include <gmock/gmock.h>

#include "forms/whole_ride.h"
#include "platform/recording.h"
#include "rehearsal/escaping.h"
#include "rehearsal/rehearsals.h"
#include "support/session_bytes.h"
#include "support/simulated_program.h"

namespace {

using namespace std::chrono_literals;
using support::SimulatedProgram;

const std::string continuousMusic = "0111111110112 1               ";

std::string wav(int milliseconds) {
  const platform::RecordingFormat format;
  const std::vector<unsigned char> samples(static_cast<std::size_t>(format.bytesFor(milliseconds)), 128);
  const auto file = platform::wavFile(format, samples);
  return {file.begin(), file.end()};
}

// Two passes of a sequence, an announcement and a sequence that is shorter than what is said before it.
std::string sessionWith(const std::string& announcement) {
  std::string bytes = support::session(3, 3).replace(71, 4, "Oui2");
  bytes.replace(165 + 61, 8, "00:00:20");
  bytes.replace(315, 14, "Annonce Vocale").replace(315 + 61, 8, "-----   ");
  bytes.replace(315 + 69, announcement.size(), announcement);
  bytes.replace(465, 6, "Sprint").replace(465 + 61, 8, "00:00:03").replace(465 + 15, 3, "100");
  return bytes;
}

// Behind the last word the music plays on.
std::vector<std::string> inOrder(std::vector<std::string> lines) {
  std::sort(lines.begin(), lines.end());
  while (!lines.empty() && (lines.back().ends_with(" play") || lines.back().ends_with(" stop")))
    lines.pop_back();
  return lines;
}

class Rider : public SimulatedProgram {
 public:
  Rider(const std::string& settings, std::chrono::milliseconds afterWholeSecond)
      : SimulatedProgram(settings, 12h + afterWholeSecond, rehearsal::SoundMode::Timed) {
    memory.put("/d/annonces/allez.wav", wav(2345));
    memory.put("/d/annonces/abime.wav", "RIFF");
    for (const auto& [name, length] : {std::pair{"a.mp3", 190000}, {"b.mp3", 5000}})
      memory.put(std::string("/d/ambiances/") + name, wav(length));
  }

  void tickMusic() {
    run("press MainForm.mnambiance\npress EnrUneAnnonce.Command8\ncheckrow EnrUneAnnonce.ListView1 1 1\n"
        "checkrow EnrUneAnnonce.ListView1 2 1\ntick EnrUneAnnonce.Check2 1\npress EnrUneAnnonce.MyButton11\n"
        "press EnrUneAnnonce.MyButton9");
  }
  void load(const std::string& bytes) {
    memory.put("/d/chronodat/s.tq2", bytes);
    run("press MainForm.MyButton5\nanswer /d/chronodat/s.tq2\npress CreerCycle.MyButton4\nadvance 2");
  }
  // What the voice says and what the music is told after the start, by moments since then.
  std::vector<std::string> ride() {
    run("press CreerCycle.MyButton5\nadvance 0.5\njournal");
    start_ = loop().clock().now();
    std::istringstream journal(run("press MainForm.MyButton3\nadvance 400\njournal"));
    std::vector<std::string> done;
    bool open = false;
    for (std::string line; std::getline(journal, line);) {
      const std::size_t tab = line.find('\t');
      const platform::Instant at{std::llround(std::stod(line.substr(0, tab)) * 1000)};
      const std::string what = line.substr(tab + 1);
      if (what.starts_with("media\topen")) open = true;
      const bool music = open && (what.starts_with("media\tplay") || what.starts_with("media\tstop"));
      if (music || what.starts_with("prompt") || what.starts_with("file"))
        done.push_back(said(at - start_, music ? what.substr(6, 4) : what));
    }
    return inOrder(std::move(done));
  }
  [[nodiscard]] platform::Instant afterWholeSecond() {
    return (loop().clock().localTime() - (loop().clock().now() - start_)).time_since_epoch() % 1s;
  }

  static std::string said(platform::Instant at, const std::string& what) {
    std::ostringstream line;
    line << std::setw(8) << at.count() << " " << what;
    return line.str();
  }

 private:
  platform::Instant start_{0};
};

std::vector<std::string> linesOf(const model::Timeline& timeline) {
  std::vector<std::string> lines;
  for (const model::TimedSound& sound : timeline.sounds) {
    lines.push_back(Rider::said(
        sound.begins, sound.prompt == 0 ? "file\t" + sound.name.substr(3)
                                        : "prompt\t" + std::to_string(sound.prompt) + "\t" + sound.name));
  }
  for (const model::TimedCommand& order : timeline.music) {
    const std::string verb = order.command.substr(0, 4);
    if (verb == "play" || verb == "stop") lines.push_back(Rider::said(order.at, verb));
  }
  return inOrder(std::move(lines));
}

TEST(Rehearsal, TellsWhatTheRideThenDoes) {
  struct Case {
    std::string settings;
    std::chrono::milliseconds after;
    bool music;
    std::string announcement;
  };
  for (const Case& c : {Case{support::settingsOn, 0ms, false, "allez.wav"},
                        {support::settingsOn, 430ms, true, "allez.wav"},
                        {continuousMusic, 770ms, true, "abime.wav"},
                        {support::settingsOff, 510ms, false, "fehlt.wav"}}) {
    Rider rider(c.settings, c.after);
    ASSERT_TRUE(rider.start());
    if (c.music) rider.tickMusic();
    rider.load(sessionWith(c.announcement));
    const model::WholeRide ride = forms::wholeRide(rider.screens());
    const std::vector<std::string> ridden = rider.ride();
    ASSERT_EQ(rider.state().plan.sequenceCourante, 0) << "the ride has ended";

    rider.memory.calls.clear();
    const model::Timeline timeline =
        rehearsal::Rehearsals(rider.disk, "/d").whole(ride, rider.afterWholeSecond());
    EXPECT_EQ(linesOf(timeline), ridden) << c.settings << c.after.count();
    EXPECT_EQ(timeline.rows.size(), 6U);
    EXPECT_EQ(timeline.holds.empty(), !c.music || c.settings == continuousMusic);
    EXPECT_EQ(rider.run("journal"), "") << "nothing is heard of a rehearsal";
    for (const std::string& call : rider.memory.calls) EXPECT_TRUE(call.starts_with("read ")) << call;
  }
}

// "Fin vers 12 h 05" as minutes of the day.
long minuteOf(const std::string& caption) {
  int hours = 0;
  int minutes = 0;
  EXPECT_EQ(std::sscanf(caption.c_str(), "Fin vers %d h %d", &hours, &minutes), 2) << caption;
  return hours * 60L + minutes;
}

TEST(Rehearsal, TellsTheEditorHowLongItTakesAndTheRideWhenItEnds) {
  Rider rider(support::settingsOn, 0ms);
  ASSERT_TRUE(rider.start());
  rider.load(sessionWith("allez.wav"));
  EXPECT_EQ(rider.screens().editor.RealDuration.caption.get(), "avec la voix ≈ 00:01:17");
  const std::vector<platform::Instant> tooShort = rider.state().tooShort;
  ASSERT_EQ(tooShort.size(), 6U);
  EXPECT_EQ(tooShort[0], 0ms);
  EXPECT_GT(tooShort[2], 0ms);
  rider.run("cell CreerCycle.ListView1 2 10\npick CreerCycle.Combo3 10\nadvance 2");
  EXPECT_EQ(rider.screens().editor.RealDuration.caption.get(), "avec la voix ≈ 00:11:17");

  rider.run("press CreerCycle.MyButton5\nadvance 0.5\npress MainForm.MyButton3\nadvance 30");
  const platform::Label& told = rider.screens().main.EndTime;
  const long first = minuteOf(told.caption);
  rider.run("press MainForm.Command7\nadvance 600");
  EXPECT_EQ(minuteOf(told.caption), first + 10);
  rider.run("press MainForm.Command7");
  long last = 0;
  for (int second = 0; rider.state().plan.started() && second < 2000; ++second) {
    last = minuteOf(told.caption);
    rider.run("advance 1");
  }
  const auto ended = rider.loop().clock().localTime().time_since_epoch() % std::chrono::days(1);
  EXPECT_NEAR(static_cast<double>(last), static_cast<double>(ended / 1min), 1);
  EXPECT_EQ(told.caption.get(), "");
}

}  // namespace
