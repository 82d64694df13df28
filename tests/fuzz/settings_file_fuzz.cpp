// Any bytes as the settings file: the program starts, and what it stores afterwards is read as it was stored.
#include "fuzz/check.h"
#include "model/settings_file.h"
#include "rehearsal/memory_file_system.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  rehearsal::MemoryFileSystem files;
  const std::string bytes(data, data + size);
  files.put("/d/par.tq3", bytes);
  const std::optional<model::Settings> settings = model::readSettings(files, "/d/par.tq3");
  fuzz::check(*files.files.at("/d/par.tq3") == bytes, "reading changes nothing");
  if (!settings) return 0;
  for (std::size_t box = 0; box + 1 < model::settingsBoxCount; ++box) {
    fuzz::check(settings->boxes.at(box) <= 1, "a validated box is on or off");
  }
  model::Settings stored{{0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 1, 1, 1}, settings->countdown};
  model::writeSettings(files, "/d/par.tq3", stored);
  const std::optional<model::Settings> again = model::readSettings(files, "/d/par.tq3");
  fuzz::check(again && again->boxes == stored.boxes, "the boxes are read as they were stored");
  return 0;
}
