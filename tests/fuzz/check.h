// What must hold for every input: a broken promise ends the fuzz target.
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
