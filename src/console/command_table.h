// The commands by their names.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "console/arguments.h"

namespace console {

using CommandTable = std::map<std::string, std::function<void(Arguments&)>, std::less<>>;

}  // namespace console
