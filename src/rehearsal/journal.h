// What the program has done to the outside, a line each: seconds since the start, kind, the rest.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace rehearsal {

// The clock's seconds with three decimals, as the journal writes them.
[[nodiscard]] std::string secondsText(platform::Instant instant);

class Journal {
 public:
  explicit Journal(const platform::Clock& clock) : clock_(clock) {}

  // The rest is given as fields, parted by tabs; each is escaped.
  void write(std::string_view kind, const std::vector<std::string_view>& fields);
  // For a state that is set over and over: writes nothing if the last line of the kind says the same.
  void writeState(std::string_view kind, const std::string& state);
  // For a program whose journal nobody reads.
  void keepNothing() { keeps_ = false; }
  // Prints the lines of a kind, or all of them for an empty one, and forgets what it printed.
  void print(std::ostream& out, std::string_view kind);

  [[nodiscard]] static const std::vector<std::string>& kinds();

 private:
  struct Line {
    std::string kind;
    std::string text;
  };

  const platform::Clock& clock_;
  bool keeps_ = true;
  std::vector<Line> lines_;
  std::map<std::string, std::string> states_;  // the last one of each kind
};

}  // namespace rehearsal
