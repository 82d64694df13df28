#include "voice/own_voice.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <utility>

#include "platform/fault.h"
#include "platform/wav_form.h"
#include "voice/sound_bank.h"
#include "voice/spoken_take.h"
#include "voice/wav_samples.h"

namespace voice {
namespace {

constexpr std::chrono::seconds longestRecording{longestSeconds};
constexpr std::uint64_t largestFile = 64 << 20;  // bytes; 15 s at the highest rate are less

// The number that the name of a recording begins with; none for a file that is none of them, such as a note.
std::optional<int> numberOf(const std::string& name) {
  int number = 0;
  const char* const end = name.data() + name.size();
  const auto [behind, error] = std::from_chars(name.data(), end, number);
  if (error != std::errc{} || number < 0 || behind == end) return std::nullopt;
  return *behind == '.' || *behind == ' ' ? std::optional(number) : std::nullopt;
}

// Reads no further than to the first sound, which is near the beginning.
bool isSilent(platform::RandomFile& file, const platform::WavForm& form) {
  constexpr std::uint64_t about = 4096;  // bytes at once
  const auto heard = static_cast<float>(amplitudeOf(silentBelow));
  const std::uint64_t piece = (about / form.blockSize + 1) * form.blockSize;
  std::vector<char> bytes(piece);
  for (std::uint64_t at = 0; at < form.dataSize; at += piece) {
    const std::uint64_t wanted = std::min(piece, form.dataSize - at);
    const std::size_t got = file.readAt(form.dataAt + at, std::span(bytes).first(wanted));
    const std::vector<unsigned char> blocks(bytes.begin(), bytes.begin() + static_cast<long>(got));
    if (peakOf(samplesOf(form, blocks)) >= heard) return false;
  }
  return true;
}

// The names with commas, as far as there is room for them.
std::string listed(const std::vector<std::string>& names, std::size_t& room) {
  std::string list;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string name = (i == 0 ? "" : ", ") + names[i];
    if (name.size() > room)
      return list + (i == 0 ? "" : " et ") + std::to_string(names.size() - i) + " autres";
    room -= name.size();
    list += name;
  }
  return list;
}

}  // namespace

void OwnVoice::lookIn(std::string folder) {
  folder_ = std::move(folder);
  unlisted_.clear();
  names_.clear();
  said_.clear();
  try {
    if (!files_.exists(folder_)) return;
    for (const std::string& name : files_.list(folder_.substr(0, folder_.size() - 1))) {
      const std::optional<int> number = numberOf(name);
      if (!number) continue;
      std::vector<std::string>& names = names_[*number];
      const bool best = name == std::to_string(*number) + ".wav";
      names.insert(best ? names.begin() : names.end(), name);
    }
  } catch (const platform::FileFault& fault) {
    unlisted_ = fault.what();
  }
}

OwnVoice::Verdict OwnVoice::verdictOn(platform::RandomFile& file) {
  const std::optional<platform::WavForm> form = platform::wavForm(file);
  if (!form || !canBePlayed(*form)) return Verdict::NoSound;
  if (form->length() > longestRecording) return Verdict::TooLong;
  if (file.size() > largestFile) return Verdict::NoSound;
  return isSilent(file, *form) ? Verdict::Silent : Verdict::Good;
}

OwnVoice::Verdict OwnVoice::verdictOn(const std::string& name) const {
  try {
    return verdictOn(*files_.open(folder_ + name, platform::OpenMode::Read));
  } catch (const platform::FileFault&) {
    return Verdict::Unreadable;
  }
}

bool OwnVoice::has(int number) const {
  const auto found = names_.find(number);
  return found != names_.end() && promptByNumber(number) != nullptr &&
         std::any_of(found->second.begin(), found->second.end(),
                     [this](const std::string& name) { return verdictOn(name) == Verdict::Good; });
}

std::string OwnVoice::complaint() const {
  static constexpr std::array<std::pair<Verdict, const char*>, 5> reasons{
      {{Verdict::NoSound, "Pas un son WAV"},
       {Verdict::TooLong, "Plus de 15 secondes"},
       {Verdict::Silent, "Silence"},
       {Verdict::Unreadable, "Illisible"},
       {Verdict::NoSuchPrompt, "Aucune annonce de ce numéro"}}};
  if (!unlisted_.empty()) return unlisted_ + "\nLa voix de Ventoria parle à sa place.";
  std::map<Verdict, std::vector<std::string>> told;
  for (const auto& [number, names] : names_) {
    if (has(number)) continue;
    const bool known = promptByNumber(number) != nullptr;
    told[known ? verdictOn(names.front()) : Verdict::NoSuchPrompt].push_back(names.front());
  }
  std::size_t room = 1500;  // bytes: each prompt of the bank once, by its plain name
  std::string lines;
  for (const auto& [verdict, reason] : reasons) {
    if (told.contains(verdict))
      lines += "\n" + std::string(reason) + " : " + listed(told[verdict], room) + ".";
  }
  if (lines.empty()) return {};
  return "Dans le dossier « " + folder_.substr(0, folder_.size() - 1) +
         " », ces fichiers ne peuvent pas servir ; la voix de Ventoria parle à leur place." + lines;
}

std::optional<OwnVoice::Kept> OwnVoice::read(int number, const platform::SoundClip& builtIn) const {
  const auto found = names_.find(number);
  if (found == names_.end()) return std::nullopt;
  for (const std::string& name : found->second) {
    try {
      const auto file = files_.open(folder_ + name, platform::OpenMode::Read);
      if (verdictOn(*file) != Verdict::Good) continue;
      std::vector<char> bytes(file->size());
      bytes.resize(file->readAt(0, bytes));
      return Kept{{bytes.begin(), bytes.end()}, builtIn};
    } catch (const platform::FileFault&) {  // told at the start, or gone since
    }
  }
  return std::nullopt;
}

const platform::SoundClip* OwnVoice::prompt(int number) {
  const platform::SoundClip* const builtIn = promptByNumber(number);
  if (builtIn == nullptr) return nullptr;
  auto kept = said_.find(number);
  if (kept == said_.end()) {
    kept = said_.emplace(number, read(number, *builtIn)).first;
    if (kept->second) kept->second->clip.wav = kept->second->wav;
  }
  return kept->second ? &kept->second->clip : builtIn;
}

}  // namespace voice
