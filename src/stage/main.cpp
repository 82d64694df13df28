// ventoria-stage: runs the console's commands on the desktop's real windows, with the console's simulated
// devices and clock, and takes pictures of the windows.
#include <QApplication>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include "console/names.h"
#include "console/session.h"
#include "desktop/windows.h"
#include "platform/program_folder.h"
#include "stage/camera.h"
#include "stage/widget_hands.h"
#include "widgets/qt_text.h"
#include "widgets/theme.h"

namespace {

struct StageOptions {
  console::Options console;
  widgets::ThemeMode theme = widgets::ThemeMode::Dark;
  QSize size{1280, 800};
  bool check = false;
};

// Takes the stage's own options out of the console's.
StageOptions parse(std::vector<std::string> words) {
  StageOptions options;
  const auto extract = [&](const char* name) -> std::optional<std::string> {
    const auto found = std::find(words.begin(), words.end(), name);
    if (found == words.end() || found + 1 == words.end()) return std::nullopt;
    const std::string value = *(found + 1);
    words.erase(found, found + 2);
    return value;
  };
  options.check = std::erase(words, "--check") > 0;
  if (const auto theme = extract("--theme"); theme == "light") options.theme = widgets::ThemeMode::Light;
  if (const auto size = extract("--size")) {
    const QStringList sides = widgets::toQt(*size).split(QLatin1Char('x'));
    if (sides.size() == 2) options.size = QSize(sides[0].toInt(), sides[1].toInt());
  }
  options.console = console::parseOptions(words);
  return options;
}

int run(const StageOptions& options) {
  std::ifstream script;
  if (!options.console.script.empty()) {
    script.open(options.console.script);
    if (!script.is_open()) throw console::UsageError("cannot open " + options.console.script);
  }
  const std::string folder =
      options.console.folder.empty() ? platform::programFolder() : options.console.folder;
  stage::WidgetHands hands;
  console::Session session(options.console, std::filesystem::absolute(folder).lexically_normal().string(),
                           std::cout, &hands);
  desktop::Windows windows(session.program(), options.theme);
  windows.saveTakesBy([&](const std::string& path) { session.saveTake(path); });
  hands.attach(windows);
  windows.binder().onPopUp([&](const platform::MenuItem& root) { session.interpreter().menuOpened(root); });
  stage::Camera camera(windows, options.check);
  session.interpreter().add("capture", [&](console::Arguments& arguments) {
    const std::string name = arguments.word("FORM");
    camera.capture(console::findForm(session.program().screens(), name), arguments.text());
  });
  // Shows a spoken text: the simulated voice ends at once, before a picture could be taken.
  session.interpreter().add(
      "speak", [&](console::Arguments& arguments) { windows.speak(widgets::toQt(arguments.text())); });
  windows.window().resize(options.size);
  windows.window().show();
  QCoreApplication::processEvents();
  const int status = session.run(script.is_open() ? script : std::cin, std::cerr);
  return camera.foundFaults() && status == 0 ? 1 : status;
}

}  // namespace

int main(int count, char** words) {
  QApplication application(count, words);
  try {
    const StageOptions options = parse({words + 1, words + count});
    return run(options);
  } catch (const std::exception& error) {
    std::cerr << "ventoria-stage: " << error.what() << '\n';
    return 2;
  }
}
