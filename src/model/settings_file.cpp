#include "model/settings_file.h"

#include "model/numbers.h"
#include "model/record.h"

namespace model {
namespace {

constexpr std::size_t settingsWidth = 30;
constexpr Field countdownField{"Combo5", 12, 2};
constexpr Field filler{"filler", 15, 15};
constexpr std::size_t validatedBoxes = 12;  // the thirteenth came later and was never checked
constexpr unsigned char greatestCountdownCode = 60;

// The thirteenth box stands behind the countdown.
constexpr Field boxField(std::size_t index) {
  return {"Check", static_cast<std::uint16_t>(index < validatedBoxes ? index : 14), 1};
}

}  // namespace

std::optional<Settings> readSettings(platform::FileSystem& files, const std::string& path) {
  // An existing file is opened for reading alone, so that one without write permission can be read.
  using enum platform::OpenMode;
  const auto file = files.open(path, files.exists(path) ? Read : ReadWriteCreate);
  Record record(settingsWidth);
  record.read(*file, 1);
  Settings settings;
  for (std::size_t i = 0; i < settingsBoxCount; ++i) {
    settings.boxes.at(i) = lenientInteger(record.get(boxField(i)));
    if (i < validatedBoxes && settings.boxes.at(i) > 1) return std::nullopt;
  }
  settings.countdown = record.get(countdownField);
  // The code of the first character is tested, not the number: a number above 60 passes.
  if (static_cast<unsigned char>(settings.countdown.front()) > greatestCountdownCode) return std::nullopt;
  return settings;
}

void writeSettings(platform::FileSystem& files, const std::string& path, const Settings& settings) {
  Record record(settingsWidth);
  for (std::size_t i = 0; i < settingsBoxCount; ++i) {
    record.set(boxField(i), std::to_string(settings.boxes.at(i)));
  }
  record.set(countdownField, settings.countdown);
  record.set(filler, "");
  record.store(files, path);
}

}  // namespace model
