// Waiting for what other programs, servers and threads bring about in their own time.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace support {

// Looks until it is so; the bound is only there to end a test that has failed.
inline bool comes(const std::function<bool()>& so) {
  using namespace std::chrono_literals;
  const auto end = std::chrono::steady_clock::now() + 20s;
  while (!so() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(5ms);
  return so();
}

}  // namespace support
