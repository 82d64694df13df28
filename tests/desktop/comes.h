// Waits for things that other programs, servers and threads do in their own time.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace support {

// Waits until `so` is true; after 20 s, which only a failing test takes, it gives up.
inline bool comes(const std::function<bool()>& so) {
  using namespace std::chrono_literals;
  const auto end = std::chrono::steady_clock::now() + 20s;
  while (!so() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(5ms);
  return so();
}

}  // namespace support
