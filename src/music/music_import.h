// Copying the rider's music into the library.
#pragma once

#include <string>
#include <vector>

#include "music/selection_list.h"

namespace music {

class MusicImport {
 public:
  MusicImport(const context::Context& context, SelectionList& list, Selection& selection,
              std::string documentsFolder);

 private:
  void importer();
  void copyAll(const std::vector<std::string>& chosen);
  void copyOne(const std::string& from, const std::string& to, const std::string& name);
  void rebuild();

  context::Context context_;
  forms::EnrUneAnnonce& library_;
  SelectionList& list_;
  Selection& selection_;
  std::string documentsFolder_;
  std::size_t copied_ = 0;  // files of the batch that are done
  std::size_t nbFichiersChoisis_ = 0;
  bool givenUp_ = false;
  std::string failed_;  // names of what could not be copied
  std::string why_;     // why the first of them failed
};

}  // namespace music
