// The person's terminal: gives single keys without Enter, and is put back as it was at the end.
#pragma once

#include <chrono>
#include <deque>
#include <memory>

namespace console {

class Terminal {
 public:
  enum class Input {
    Keys,      // of a terminal only
    Anything,  // also what a pipe or a file gives
  };

  explicit Terminal(Input input = Input::Keys);
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  [[nodiscard]] bool canRedraw() const { return redraws_; }  // the output is a terminal
  [[nodiscard]] int width() const;
  // The input is a terminal, which gives single keys without Enter.
  [[nodiscard]] bool givesKeys() const { return saved_ != nullptr; }
  // Waits for so long, or shorter if a key or a signal comes.
  void wait(std::chrono::milliseconds time);
  // The next key pressed, 0 for none.
  char key();
  [[nodiscard]] bool keyWaiting() const { return !keys_.empty(); }
  // Whether a signal has asked the program to end, Ctrl+C among them.
  [[nodiscard]] static bool interrupted();

 private:
  struct Saved;
  std::unique_ptr<Saved> saved_;  // what to put back; none where the input is no terminal
  Input input_;
  bool redraws_;
  std::deque<char> keys_;
};

}  // namespace console
