// `ParPerso.tq1`: the rider's figures for the heart-rate calculator, one record of 40 bytes. docs/files.md
// has every byte.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace model {

// The fields as texts without blanks at their ends. A field that the file lacks is empty; a missing file is
// created. A text ends at its first character of code 0.
struct PersonalFigures {
  std::string age;            // years; empty in a new file
  std::string sexe;           // "Féminin" or "Masculin"
  std::string fcMax;          // bpm
  std::string fcRepos;        // bpm
  std::string methode;        // "0" to "5"
  std::string modeAffichage;  // "1" to "3"
};

// Both throw platform::FileFault.
[[nodiscard]] PersonalFigures readPersonal(platform::FileSystem& files, const std::string& path);
void writePersonal(platform::FileSystem& files, const std::string& path, const PersonalFigures& figures);

}  // namespace model
