// The environment variables of the process.
#pragma once

#include <cstdlib>
#include <string>

namespace platform {

// Empty where the variable is not set.
[[nodiscard]] inline std::string environmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace platform
