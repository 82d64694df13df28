// Answers from the terminal by single keys, or from any other input line by line.
#pragma once

#include "console/terminal.h"
#include "console/voice_recording.h"

namespace console {

class TypedAnswers final : public Answers {
 public:
  char next() override;
  void forget() override;

 private:
  // The next character; 0 at the end.
  char character();

  Terminal terminal_{Terminal::Input::Anything};
};

}  // namespace console
