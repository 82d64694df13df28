// Any bytes as the file of the rider's figures: six texts without blanks at their ends, read again as stored.
#include "fuzz/check.h"
#include "model/personal_file.h"
#include "rehearsal/memory_file_system.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  rehearsal::MemoryFileSystem files;
  files.put("/d/ParPerso.tq1", std::string(data, data + size));
  const model::PersonalFigures read = model::readPersonal(files, "/d/ParPerso.tq1");
  model::writePersonal(files, "/d/ParPerso.tq1", read);
  const model::PersonalFigures again = model::readPersonal(files, "/d/ParPerso.tq1");
  const auto texts = [](const model::PersonalFigures& figures) {
    return std::string(figures.age + '|' + figures.sexe + '|' + figures.fcMax + '|' + figures.fcRepos + '|' +
                       figures.methode + '|' + figures.modeAffichage);
  };
  fuzz::check(texts(again) == texts(read), "the figures are read as they were stored");
  return 0;
}
