// The machine's clipboard, as far as it holds text.
#pragma once

#include <string>

namespace platform {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // What any program has copied last, UTF-8; empty where that is no text, or nothing.
  virtual std::string text() = 0;
  virtual void setText(const std::string& text) = 0;
};

}  // namespace platform
