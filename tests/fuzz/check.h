// A condition that must hold for every input; if it does not, the fuzz target aborts.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

namespace fuzz {

inline void check(bool holds, const std::string& promise) {
  if (holds) return;
  std::cerr << "broken: " << promise << '\n';
  std::abort();
}

}  // namespace fuzz
