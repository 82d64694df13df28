// Names of video codes, from the file `fourcc.txt` beside the program, where there is one.
#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/file_system.h"

namespace player {

class FourccTable {
 public:
  FourccTable(platform::FileSystem& files, platform::Dialogs& dialogs) : files_(files), dialogs_(dialogs) {}

  // Three lines of preamble, then three lines a record: code, full name, creator.
  void chargerFourcc(const std::string& folder);
  // Tells the rider what the first four characters of the text stand for.
  void montrerFourcc(const std::string& text) const;

 private:
  struct Record {
    std::string code;
    std::string nomComplet;
    std::string createur;
  };

  platform::FileSystem& files_;
  platform::Dialogs& dialogs_;
  std::vector<Record> records_;
};

}  // namespace player
