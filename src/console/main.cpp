#include <filesystem>
#include <fstream>
#include <iostream>

#include "console/options.h"
#include "console/ride_mode.h"
#include "console/session.h"
#include "platform/program_folder.h"

namespace {

int runScript(const console::Options& options) {
  std::ifstream script;
  if (!options.script.empty()) {
    script.open(options.script);
    if (!script.is_open()) throw console::UsageError("cannot open " + options.script);
  }
  const std::string folder = options.folder.empty() ? platform::programFolder() : options.folder;
  console::Session session(options, std::filesystem::absolute(folder).lexically_normal().string(), std::cout);
  return session.run(options.script.empty() ? std::cin : script, std::cerr);
}

}  // namespace

int main(int count, char** words) {
  try {
    const console::Options options = console::parseOptions({words + 1, words + count});
    if (options.help) {
      std::cout << console::usage();
      return 0;
    }
    return options.ride.empty() ? runScript(options) : console::ride(options.ride, options.speed);
  } catch (const console::UsageError& error) {
    std::cerr << "ventoria-console: " << error.what() << '\n' << console::usage();
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "ventoria-console: " << error.what() << '\n';
    return 1;
  }
}
