// The words behind a command's name, read one after the other.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace console {

// A command that cannot be understood; its text follows "error: ".
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A rider's command on what he cannot touch; its text follows "refused: ".
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Arguments {
 public:
  explicit Arguments(std::string_view line) : rest_(line) { skipBlanks(); }

  [[nodiscard]] bool empty() const { return rest_.empty(); }
  // The next word; `what` names it for the error where there is none.
  std::string word(std::string_view what);
  int number(std::string_view what);
  double decimal(std::string_view what);
  bool flag(std::string_view what);  // 0 or 1
  // The rest of the line, unescaped and without double quotes around it.
  std::string text();
  // The rest of the line as it stands.
  std::string_view rest();
  // Throws CommandError if anything is left.
  void end() const;

 private:
  void skipBlanks();

  std::string_view rest_;
};

}  // namespace console
