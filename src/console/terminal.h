// The person's terminal: gives single keys without Enter, and is put back as it was at the end.
#pragma once

#include <chrono>
#include <deque>
#include <memory>

namespace console {

class Terminal {
 public:
  Terminal();
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  [[nodiscard]] bool canRedraw() const { return redraws_; }  // the output is a terminal
  [[nodiscard]] int width() const;
  // Waits for so long, or shorter if a key or a signal comes.
  void wait(std::chrono::milliseconds time);
  // The next key pressed, 0 for none.
  char key();
  // Whether a signal has asked the program to end, Ctrl+C among them.
  [[nodiscard]] static bool interrupted();

 private:
  struct Saved;
  std::unique_ptr<Saved> saved_;  // what to put back; none where the input is no terminal
  bool redraws_;
  std::deque<char> keys_;
};

}  // namespace console
