#include "console/typed_answers.h"

namespace console {

char TypedAnswers::character() {
  using namespace std::chrono_literals;
  constexpr char endOfInput = 4;  // Ctrl+D, as the terminal gives it by single keys
  for (;;) {
    if (const char typed = terminal_.key()) return typed == endOfInput ? '\0' : typed;
    if (Terminal::interrupted()) return 0;
    terminal_.wait(1s);
  }
}

char TypedAnswers::next() {
  const char answer = character();
  if (terminal_.givesKeys()) return answer;
  for (char rest = answer; rest != '\n' && rest != 0;) rest = character();
  return answer;
}

void TypedAnswers::forget() {
  using namespace std::chrono_literals;
  if (!terminal_.givesKeys()) return;  // a script is written ahead of time
  do {
    while (terminal_.key() != 0) {
    }
    terminal_.wait(0s);
  } while (terminal_.keyWaiting());
}

}  // namespace console
