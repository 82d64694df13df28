#include "console/voice_recording.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

#include "platform/fault.h"
#include "platform/recording.h"
#include "platform/whole_file.h"
#include "voice/sound_bank.h"
#include "voice/spoken_take.h"

namespace console {
namespace {

constexpr platform::RecordingFormat format{22050, 16, 1};
constexpr float fullScale = 32767;

std::vector<unsigned char> bytesOf(const std::vector<float>& samples) {
  std::vector<unsigned char> bytes;
  bytes.reserve(samples.size() * 2);
  for (const float sample : samples) {
    const auto whole = static_cast<std::uint16_t>(std::lrint(sample * fullScale));
    bytes.push_back(static_cast<unsigned char>(whole & 0xFFU));
    bytes.push_back(static_cast<unsigned char>(whole >> 8U));
  }
  return bytes;
}

// "2,3 s"
std::string seconds(std::size_t samples) {
  const std::size_t tenths = samples * 10 / static_cast<std::size_t>(format.samplesPerSecond);
  return std::to_string(tenths / 10) + "," + std::to_string(tenths % 10) + " s";
}

bool overdriven(const std::vector<float>& samples) {
  constexpr float top = 0.999F;
  constexpr int allowed = 3;
  return std::count_if(samples.begin(), samples.end(), [](float x) { return std::abs(x) >= top; }) > allowed;
}

}  // namespace

VoiceRecording::VoiceRecording(platform::FileSystem& files, platform::Studio& studio, Answers& answers,
                               std::ostream& out, const std::string& folder)
    : files_(files),
      studio_(studio),
      answers_(answers),
      out_(out),
      folder_(folder.ends_with('/') ? folder : folder + "/"),
      own_(files) {}

int VoiceRecording::recorded() const {
  const auto prompts = voice::prompts();
  return static_cast<int>(
      std::count_if(prompts.begin(), prompts.end(),
                    [this](const platform::SoundClip& clip) { return own_.has(clip.number); }));
}

void VoiceRecording::tellProgress() {
  own_.lookIn(folder_);
  out_ << recorded() << " sur " << voice::prompts().size() << " sont enregistrés dans « "
       << folder_.substr(0, folder_.size() - 1) << " ».\n";
}

void VoiceRecording::run() {
  files_.makeFolder(folder_.substr(0, folder_.size() - 1));
  platform::removeLeftovers(files_, folder_);
  tellProgress();
  out_
      << "Parlez à une main du micro, toujours aussi fort. Ctrl+C arrête à tout moment : rien de gardé n'est "
         "perdu.\n";
  std::size_t place = 0;
  for (const platform::SoundClip& clip : voice::prompts()) {
    ++place;
    if (own_.has(clip.number)) continue;
    out_ << '\n'
         << place << '/' << voice::prompts().size() << "  n° " << clip.number << "  « " << clip.spoken
         << " »\n";
    if (!speak(clip)) break;
  }
  out_ << '\n';
  tellProgress();
}

char VoiceRecording::ask(const std::string& question, const std::string& letters) {
  out_ << "  " << question << " : " << std::flush;
  char answer = 0;
  do {
    answer = answers_.next();
  } while (answer != 0 && letters.find(answer) == std::string::npos);
  out_ << '\n';
  stopped_ = answer == 0 || answer == 'q';
  return answer;
}

bool VoiceRecording::speak(const platform::SoundClip& clip) {
  Outcome outcome = Outcome::Again;
  while (outcome == Outcome::Again) {
    const char answer = ask("Entrée = enregistrer, s = sauter, q = arrêter", "\nsq");
    if (answer == 's') return true;
    if (stopped_) return false;
    const auto wav = take();
    if (stopped_) return false;
    if (!wav) continue;
    listen(*wav);
    outcome = judge(clip, *wav);
  }
  return outcome == Outcome::Done;
}

std::optional<std::vector<char>> VoiceRecording::take() {
  if (!studio_.record(format.samplesPerSecond)) {
    out_ << "  Aucun micro n'est entendu : branchez-en un, ou choisissez-le dans les réglages du son.\n";
    return std::nullopt;
  }
  ask("J'écoute. Entrée = fini, q = arrêter", "\nq");
  const std::vector<float> samples = studio_.stop();
  if (stopped_) return std::nullopt;
  std::vector<float> prompt = voice::asPrompt(samples, format.samplesPerSecond);
  if (prompt.empty()) {
    out_ << "  Rien n'a été entendu. Le micro est-il coupé, ou trop loin ?\n";
    return std::nullopt;
  }
  out_ << "  " << seconds(prompt.size())
       << (overdriven(samples) ? ", mais trop fort : reculez du micro.\n" : "\n");
  if (prompt.size() > voice::longestSeconds * static_cast<std::size_t>(format.samplesPerSecond)) {
    out_ << "  C'est plus de " << voice::longestSeconds << " secondes : trop long.\n";
    return std::nullopt;
  }
  return platform::wavFile(format, bytesOf(prompt));
}

void VoiceRecording::listen(const std::vector<char>& wav) {
  const std::vector<unsigned char> bytes(wav.begin(), wav.end());
  if (!studio_.play(bytes)) out_ << "  Aucun haut-parleur : cette prise ne peut pas être écoutée.\n";
  answers_.forget();  // a second Enter behind the take must not keep it unheard
}

VoiceRecording::Outcome VoiceRecording::judge(const platform::SoundClip& clip, const std::vector<char>& wav) {
  for (;;) {
    switch (ask("Entrée = garder, r = refaire, e = réécouter, s = sauter, q = arrêter", "\nresq")) {
      case '\n':
        if (keep(clip, wav)) return Outcome::Done;
        break;
      case 'r':
        return Outcome::Again;
      case 'e':
        listen(wav);
        break;
      case 's':
        return Outcome::Done;
      default:
        return Outcome::Stop;
    }
  }
}

// What cannot be written is not lost: he can make room and keep it then.
bool VoiceRecording::keep(const platform::SoundClip& clip, const std::vector<char>& wav) {
  try {
    platform::saveWhole(files_, folder_ + std::to_string(clip.number) + ".wav", wav);
    return true;
  } catch (const platform::FileFault& fault) {
    out_ << "  " << fault.what() << '\n';
    return false;
  }
}

}  // namespace console
