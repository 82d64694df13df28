// Whole rides with music at a real sound server: presses the program's buttons and listens to its sound. Run
// it under with-sound-server.
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <map>
#include <numbers>
#include <optional>
#include <set>

#include "desktop/desktop_program.h"
#include "desktop/loudspeaker.h"
#include "platform/recording.h"
#include "widgets/qt_text.h"

namespace desktop {

using devices::WavDecoder;
using widgets::fromQt;
using widgets::ThemeMode;
using widgets::toQt;

namespace {

using support::Recording;
using support::Samples;

constexpr int sampleRate = WavDecoder::sampleRate;
constexpr double musicLevel = 0.1;  // amplitude; full scale is 1

// Music whose rising pitch tells how far it has been played; it lies above the pitches of the voice.
struct Sweep {
  double first;  // Hz
  double seconds;
};
constexpr double rise = 150;  // Hz a second
constexpr Sweep longPiece{8000, 40};
constexpr Sweep shortPiece{8000, 8};
constexpr Sweep nextPiece{14500, 20};

// Mono, 16 bits.
template <class Pitch>
std::vector<char> wavOf(double seconds, double level, Pitch pitch) {
  std::vector<unsigned char> bytes;
  double phase = 0;
  for (int i = 0; i < int(seconds * sampleRate); ++i) {
    phase += 2 * std::numbers::pi * pitch(double(i) / sampleRate) / sampleRate;
    const auto value = static_cast<unsigned>(std::lround(32767 * level * std::sin(phase)));
    bytes.push_back(static_cast<unsigned char>(value & 0xFF));
    bytes.push_back(static_cast<unsigned char>(value >> 8 & 0xFF));
  }
  return platform::wavFile({sampleRate, 16, 1}, bytes);
}

std::vector<char> music(const Sweep& sweep) {
  return wavOf(sweep.seconds, musicLevel, [&](double at) { return sweep.first + rise * at; });
}

constexpr std::array<double, 4> tones{700, 1300, 2100, 1000};  // Hz, each for twelve frames
constexpr std::size_t toneFrames = 12;
constexpr double frameLength = 0.02;  // seconds

std::vector<char> melody() {
  return wavOf(tones.size() * toneFrames * frameLength, 0.5, [](double at) {
    return tones.at(std::min(std::size_t(at / (toneFrames * frameLength)), tones.size() - 1));
  });
}

// What sounds within 20 ms.
struct Frame {
  double voice = 0;  // effective amplitude of the voice; full scale is 1
  double pitch = 0;  // Hz, the loudest of the voice
  double level = 0;  // amplitude of the music
  double tone = 0;   // Hz, the pitch of the music

  [[nodiscard]] bool speaks() const { return voice > 0.01; }
  [[nodiscard]] bool hasMusic() const { return level > musicLevel / 2; }
};

constexpr std::size_t windowSize = 1024;
using Spectrum = std::vector<std::complex<double>>;

Spectrum transform(const Spectrum& in) {
  const std::size_t half = in.size() / 2;
  if (half == 0) return in;
  Spectrum even(half);
  Spectrum odd(half);
  for (std::size_t i = 0; i < half; ++i) even[i] = in[2 * i], odd[i] = in[2 * i + 1];
  even = transform(even);
  odd = transform(odd);
  Spectrum out(in.size());
  for (std::size_t i = 0; i < half; ++i) {
    const auto turned = std::polar(1.0, -std::numbers::pi * double(i) / double(half)) * odd[i];
    out[i] = even[i] + turned;
    out[i + half] = even[i] - turned;
  }
  return out;
}

// The loudest bin between two pitches in Hz, and its own pitch, interpolated between the bins.
std::pair<std::size_t, double> loudest(const Spectrum& spectrum, double from, double to) {
  const auto bin = [](double hertz) { return std::ptrdiff_t(hertz * windowSize / sampleRate); };
  const auto peak =
      std::max_element(spectrum.begin() + bin(from), spectrum.begin() + bin(to),
                       [](const auto& a, const auto& b) { return std::norm(a) < std::norm(b); });
  const double below = std::log(std::abs(*(peak - 1)) + 1e-9);
  const double here = std::log(std::abs(*peak) + 1e-9);
  const double above = std::log(std::abs(*(peak + 1)) + 1e-9);
  const double bend = below - 2 * here + above;
  const double shift = bend == 0 ? 0 : (below - above) / (2 * bend);
  return {std::size_t(peak - spectrum.begin()),
          (double(peak - spectrum.begin()) + shift) * sampleRate / double(windowSize)};
}

std::vector<Frame> framesOf(const Samples& samples) {
  std::vector<Frame> frames;
  const auto hop = std::size_t(frameLength * sampleRate);
  for (std::size_t from = 0; 2 * (from + windowSize) <= samples.size(); from += hop) {
    Spectrum window(windowSize);
    for (std::size_t i = 0; i < windowSize; ++i) {
      const double bell = 1 - std::cos(2 * std::numbers::pi * double(i) / windowSize);  // of mean 1
      window[i] = bell * samples[2 * (from + i)] / 32768.0;
    }
    const Spectrum spectrum = transform(window);
    Frame frame;
    for (std::size_t i = 3; i < 110; ++i)
      frame.voice += 2 * std::norm(spectrum[i]) / (1.5 * windowSize * windowSize);
    frame.voice = std::sqrt(frame.voice);
    frame.pitch = loudest(spectrum, 200, 5000).second;
    const auto [peak, tone] = loudest(spectrum, 7500, 19000);
    frame.level = 2 * std::abs(spectrum[peak]) / windowSize;
    frame.tone = tone;
    frames.push_back(frame);
  }
  return frames;
}

// A stretch of music without a gap.
struct Stretch {
  std::size_t begin;
  std::size_t end;
};

// Shorter gaps, in frames, are the sound server's: when the program holds the music, it is for half a second
// at least.
constexpr std::size_t leastHold = 15;

std::vector<Stretch> stretchesOf(const std::vector<Frame>& frames, const Sweep& piece) {
  const auto belongs = [&](const Frame& frame) {
    return frame.hasMusic() && frame.tone > piece.first - 50 &&
           frame.tone < piece.first + rise * piece.seconds + 50;
  };
  std::vector<Stretch> stretches;
  for (std::size_t i = 0; i < frames.size(); ++i) {
    if (!belongs(frames[i])) continue;
    if (stretches.empty() || i - stretches.back().end >= leastHold) stretches.push_back({i, i});
    stretches.back().end = i + 1;
  }
  return stretches;
}

double placeIn(const Sweep& piece, const Frame& frame) {
  return (frame.tone - piece.first) / rise;
}

bool holdsMelody(const std::vector<Frame>& frames) {
  for (std::size_t at = 0; at + tones.size() * toneFrames < frames.size(); ++at) {
    bool same = true;
    for (std::size_t i = 0; same && i < tones.size() * toneFrames; ++i) {
      const std::size_t within = i % toneFrames;
      if (within < 3 || within > 8) continue;
      same = frames[at + i].speaks() && std::abs(frames[at + i].pitch - tones.at(i / toneFrames)) < 30;
    }
    if (same) return true;
  }
  return false;
}

// One record of a session; `fields` gives their offsets and texts.
std::string record(const std::map<std::size_t, std::string>& fields) {
  std::string bytes(150, ' ');
  for (const auto& [at, text] : fields) bytes.replace(at, text.size(), text);
  return bytes;
}

std::string header(int records) {
  return record({{0, std::to_string(records)}, {71, "Non"}, {74, "0"}, {84, "ver2"}});
}

std::string row(const std::string& kind, const std::string& duration,
                const std::string& announcement = "-----") {
  return record({{15, kind}, {76, duration}, {84, announcement}, {134, "000"}});
}

class Ambience : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    static int count = 1;
    static char name[] = "ventoria";
    static std::array<char*, 2> words{name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count, words.data());
    QApplication::setQuitOnLastWindowClosed(false);
  }
  static void TearDownTestSuite() { application_.reset(); }

  void SetUp() override {
    ASSERT_NE(std::getenv("SOUND_SERVER_PID_FILE"), nullptr) << "not under with-sound-server";
    for (const char* folder : {"ambiances", "annonces", "chronodat"})
      std::filesystem::create_directory(at(folder));
  }

  [[nodiscard]] std::string at(const std::string& name) const { return fromQt(folder_.path()) + "/" + name; }
  template <class Bytes>
  void put(const std::string& name, const Bytes& bytes) const {
    std::ofstream(at(name), std::ios::binary).write(bytes.data(), std::ptrdiff_t(bytes.size()));
  }
  // `boxes` are the settings' first twelve; the countdown takes 2 s, and the kinds are spoken.
  void start(const std::string& boxes) {
    put("par.tq3", boxes + "2 1" + std::string(15, ' '));
    program_ = std::make_unique<DesktopProgram>(fromQt(folder_.path()), ThemeMode::Dark);
    ASSERT_TRUE(program_->start());
  }

  static QWidget* page(const char* name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() == QLatin1String(name)) return widget;
    }
    throw std::out_of_range(name);
  }
  template <class Widget>
  static Widget& widget(const char* form, const char* name) {
    auto* found = page(form)->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::out_of_range(name);
    return *found;
  }
  // Waits until a rider can press the button.
  static void press(const char* form, const char* name) {
    auto& button = widget<QAbstractButton>(form, name);
    ASSERT_TRUE(QTest::qWaitFor([&] { return button.isVisible() && button.isEnabled(); }, 30000))
        << form << "." << name;
    button.click();
  }
  static void choose(const char* entry) { widget<QAction>("MainForm", entry).trigger(); }

  static void tickAllMusic() {
    choose("mnambiance");
    for (const char* name : {"Command8", "Check1", "MyButton11", "MyButton9"}) press("EnrUneAnnonce", name);
  }
  // Puts a session before the rider, who may press "start".
  void prepare(const std::string& session) {
    put("chronodat/Essai.tq2", session);
    program_->addSession(at("chronodat/Essai.tq2"));
    press("CreerCycle", "MyButton5");
    // The frame for starting opens by itself a moment later; a start before that would be undone.
    EXPECT_TRUE(QTest::qWaitFor([] { return rideButtonSays("Stop"); }, 10000));
  }
  static bool rideButtonSays(const char* caption) {
    return widget<QPushButton>("MainForm", "MyButton1").text() == QLatin1String(caption);
  }
  static void rideUntil(const std::function<bool()>& done) {
    press("MainForm", "MyButton3");
    EXPECT_TRUE(QTest::qWaitFor(done, 60000));
  }
  // Rides a session; gives its sound from the countdown to the last word.
  std::vector<Frame> ride(const std::string& session) {
    prepare(session);
    Recording recording;
    rideUntil([] { return rideButtonSays("Start"); });
    return framesOf(recording.samples());
  }

  static std::unique_ptr<QApplication> application_;
  QTemporaryDir folder_;
  std::unique_ptr<DesktopProgram> program_;
};

std::unique_ptr<QApplication> Ambience::application_;

// Types the name into the file chooser that comes up.
void chooseFile(const QString& name) {
  QTimer::singleShot(100, qApp, [name] {
    auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (chooser == nullptr) return chooseFile(name);
    auto* edit = chooser->findChild<QLineEdit*>();
    edit->setText(name);
    QTest::keyClick(edit, Qt::Key_Return);
  });
}

TEST_F(Ambience, TheMusicYieldsToTheVoiceAndToAnAnnouncementJustRecorded) {
  put("ambiances/x.mp3", music(longPiece));
  put("melody.wav", melody());
  const std::string announcement = "allez \"vite\" & fort.wav";
  start("011100011101");

  choose("mnEnrAnnVocale");
  press("EnrUneAnnonce", "Command2");
  QProcess speech;
  speech.start("paplay", {"-d", "test_mic", toQt(at("melody.wav"))});
  ASSERT_TRUE(QTest::qWaitFor([&] { return speech.state() == QProcess::NotRunning; }, 20000));
  QTest::qWait(500);  // the last words are still sounding
  press("EnrUneAnnonce", "Command3");
  chooseFile("allez \"vite\" & fort");
  press("EnrUneAnnonce", "Command1");
  ASSERT_TRUE(std::filesystem::exists(at("annonces/" + announcement)));
  press("EnrUneAnnonce", "MyButton7");

  tickAllMusic();
  const std::vector<Frame> frames =
      ride(header(4) + row("Sprint", "00:00:04") + row("Annonce Vocale", "-----", announcement) +
           row("Plat", "00:00:04"));

  EXPECT_TRUE(holdsMelody(frames));
  const auto spokenOver = [](const Frame& frame) { return frame.speaks() && frame.hasMusic(); };
  EXPECT_EQ(std::count_if(frames.begin(), frames.end(), spokenOver), 0);
  const std::vector<Stretch> stretches = stretchesOf(frames, longPiece);
  EXPECT_GE(stretches.size(), 6U);
  double held = 0;
  for (const Stretch& stretch : stretches) {
    const double resumed = placeIn(longPiece, frames[stretch.begin]);
    if (&stretch != &stretches.front()) {
      EXPECT_NEAR(resumed, held, 0.1);
    }
    held = placeIn(longPiece, frames[stretch.end - 1]);
    EXPECT_NEAR(held - resumed, double(stretch.end - 1 - stretch.begin) * frameLength, 0.1);
  }
}

TEST_F(Ambience, TheMusicGoesOnUnderTheVoiceAndFromPieceToPiece) {
  put("ambiances/1.mp3", music(shortPiece));
  put("ambiances/2.mp3", music(nextPiece));
  start("011100011011");
  tickAllMusic();
  const std::vector<Frame> frames = ride(header(2) + row("Sprint", "00:00:06"));

  const std::vector<Stretch> first = stretchesOf(frames, shortPiece);
  ASSERT_EQ(first.size(), 1U);
  const auto begin = frames.begin() + std::ptrdiff_t(first[0].begin);
  const auto end = frames.begin() + std::ptrdiff_t(first[0].end);
  EXPECT_NEAR(double(end - begin) * frameLength, shortPiece.seconds, 0.1);
  EXPECT_LT(placeIn(shortPiece, *begin), 0.1);
  EXPECT_GT(placeIn(shortPiece, *(end - 1)), shortPiece.seconds - 0.1);
  EXPECT_GT(std::count_if(begin, end, [](const Frame& frame) { return frame.speaks(); }), 50);

  const std::vector<Stretch> second = stretchesOf(frames, nextPiece);
  ASSERT_FALSE(second.empty());
  EXPECT_GT(second[0].begin, first[0].end);
  EXPECT_LT(placeIn(nextPiece, frames[second[0].begin]), 0.1);
}

void order(const std::string& words) {
  ASSERT_EQ(std::system(words.c_str()), 0) << words;
}

// Does something at the moment when the time that is left of a ride shows a text.
class At : public QTimer {
 public:
  At(const char* left, std::function<void()> action) {
    connect(this, &QTimer::timeout, [this, left, action = std::move(action)] {
      auto* label = QApplication::activeWindow()->findChild<QWidget*>("Label40");
      if (label->property("text").toString() != QLatin1String(left)) return;
      stop();
      action();
    });
    start(10);
  }
};

// Notes each text that a label paints.
class Reader : public QObject {
 public:
  explicit Reader(QLabel& label) : label_(label) { label.installEventFilter(this); }
  std::set<QString> texts;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !label_.text().isEmpty()) texts.insert(label_.text());
    return false;
  }
  QLabel& label_;
};

void expectVoiceAndMusic(const std::vector<Frame>& frames) {
  EXPECT_GT(std::count_if(frames.begin(), frames.end(), [](const Frame& frame) { return frame.speaks(); }),
            25);
  EXPECT_GT(std::count_if(frames.begin(), frames.end(), [](const Frame& frame) { return frame.hasMusic(); }),
            25);
}

TEST_F(Ambience, AServerThatHangsHoldsUpNothingAndIsHeardAgain) {
  put("ambiances/x.mp3", music(longPiece));
  start("011100011101");
  tickAllMusic();
  prepare(header(3) + row("Sprint", "00:00:02") + row("Sprint", "00:00:06"));

  std::optional<Recording> recording;
  QElapsedTimer sinceBeat;
  qint64 longest = 0;
  QTimer beat;
  QObject::connect(&beat, &QTimer::timeout, [&] { longest = std::max(longest, sinceBeat.restart()); });
  std::optional<Reader> reader;
  const At hang("00:00:07", [&] {
    order("kill -STOP $(cat $SOUND_SERVER_PID_FILE); (sleep 9; kill -CONT $(cat $SOUND_SERVER_PID_FILE)) &");
    reader.emplace(widget<QLabel>("MainForm", "ridePrompt"));
    sinceBeat.start();
    beat.start(10);
  });
  const At goesOn("00:00:05", [&] {
    beat.stop();
    EXPECT_GE(reader->texts.size(), 2U);  // the second row and its kind
    recording.emplace();                  // begins when the server runs again
  });
  bool done = false;
  const At halfWaySaid("00:00:01", [&] { done = true; });
  rideUntil([&] { return done; });
  EXPECT_LT(longest, 2500);  // the longest prompt takes 1.4 s
  ASSERT_TRUE(recording);
  expectVoiceAndMusic(framesOf(recording->samples()));
}

TEST_F(Ambience, VoiceAndMusicFollowTheLoudspeaker) {
  put("ambiances/x.mp3", music(longPiece));
  order("pactl load-module module-null-sink sink_name=headphones >/dev/null");
  order("pactl set-default-sink headphones");
  start("011100011011");
  tickAllMusic();
  prepare(header(3) + row("Sprint", "00:00:03") + row("Sprint", "00:00:06"));

  std::optional<Recording> recording;
  const At pulled("00:00:07", [&] {
    recording.emplace();
    order("pactl unload-module $(pactl list short modules | grep headphones | cut -f1)");
  });
  const At killed("00:00:05", [&] {
    expectVoiceAndMusic(framesOf(recording->samples()));
    recording.reset();
    const pid_t server = support::serverPid();
    kill(server, SIGKILL);
    EXPECT_TRUE(support::comes(
        [&] { return support::serverPid() != server && std::system("pactl info >/dev/null 2>&1") == 0; }));
    recording.emplace();
  });
  bool done = false;
  const At halfWaySaid("00:00:01", [&] { done = true; });
  rideUntil([&] { return done; });
  ASSERT_TRUE(recording);
  expectVoiceAndMusic(framesOf(recording->samples()));
}

TEST_F(Ambience, AnImportIsGivenUpByItsButton) {
  put("long.mp3", std::string());
  std::filesystem::resize_file(at("long.mp3"), 1U << 30U);
  start("011100011101");
  choose("mnambiance");
  chooseFile(toQt(at("long.mp3")));
  bool copying = false;
  QTimer hand;
  QObject::connect(&hand, &QTimer::timeout, [&] {
    auto& givingUp = widget<QAbstractButton>("EnrUneAnnonce", "MyButton16");
    if (!givingUp.isVisible() || std::filesystem::is_empty(at("ambiances"))) return;
    copying = true;
    QTest::mouseClick(&givingUp, Qt::LeftButton);
  });
  hand.start(10);
  press("EnrUneAnnonce", "MyButton4");
  EXPECT_TRUE(copying);
  EXPECT_TRUE(std::filesystem::is_empty(at("ambiances")));
}

}  // namespace
}  // namespace desktop
