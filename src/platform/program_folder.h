// The folder of all that the program stores, unless another one is chosen on the command line.
#pragma once

#include <string>

namespace platform {

// The executable's own folder if it can be written, else the user's data folder: $XDG_DATA_HOME/ventoria.
[[nodiscard]] std::string programFolder();

}  // namespace platform
