#include "runner/boundary_sounds.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace runner {
namespace {

struct CaptionSound {
  std::string_view caption;
  std::string_view sound;
};

// "Augmentation Pr" is what a session file keeps of the long word; the long form is silent.
constexpr std::array<CaptionSound, 17> sequences{{{"Plat", "Plat"},
                                                  {"Echauffement", "echauffement"},
                                                  {"Faux Plat", "fautplat"},
                                                  {"HyperForce", "hyperforce"},
                                                  {"Montée", "montee"},
                                                  {"Normal", "normal"},
                                                  {"Pente", "pente"},
                                                  {"Petites Bosses", "petitebosse"},
                                                  {"Récupération", "recuperation"},
                                                  {"Retour au Calme", "retourcalme"},
                                                  {"Sprint", "sprint"},
                                                  {"Force", "force"},
                                                  {"Puissance", "puissance"},
                                                  {"Augmentation Pr", "augmentationprogresive"},
                                                  {"Accélération", "acceleration"},
                                                  {"Vélocité", "velocite"},
                                                  {"Pédalage Souple", "pedalagesouple"}}};

constexpr int lastNumber = 20;  // of a row or a pass

// The whole number that `text` is, without sign or leading zero; -1 where it is none.
int exactNumber(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size()) return -1;
  return std::to_string(value) == text ? value : -1;
}

// Teeth within the bounds as a letter and the number; the two words as they stand.
std::string teethSound(const std::string& caption, std::string_view noun, char letter, int first, int last) {
  if (caption == "Petit " + std::string(noun) || caption == "Grand " + std::string(noun))
    return caption + ".wav";
  const int teeth = exactNumber(caption);
  return teeth >= first && teeth <= last ? letter + caption + ".wav" : std::string();
}

}  // namespace

std::string sequenceSound(const std::string& caption) {
  const auto* found = std::find_if(sequences.begin(), sequences.end(),
                                   [&](const CaptionSound& row) { return row.caption == caption; });
  return found == sequences.end() ? std::string() : std::string(found->sound) + ".wav";
}

std::string cadenceSound(const std::string& caption) {
  for (int n = 10; n <= 150; n += 10) {
    const std::string base = std::to_string(n);
    if (caption == base || (n < 150 && caption == base + " à " + std::to_string(n + 10)))
      return caption + ".wav";
  }
  return {};
}

std::string gearSound(const std::string& caption) {
  return teethSound(caption, "Braquet", 'B', 12, 30);
}

std::string chainringSound(const std::string& caption) {
  return teethSound(caption, "Plateau", 'P', 28, 55);
}

std::string sequenceNumberSound(int row) {
  return row > lastNumber ? "nvsequence.wav" : "seq" + std::to_string(row) + ".wav";
}

std::string passSound(int pass) {
  return pass > lastNumber ? "nvseance.wav" : "seance" + std::to_string(pass) + ".wav";
}

}  // namespace runner
