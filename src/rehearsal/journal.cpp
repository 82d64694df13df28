#include "rehearsal/journal.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"
#include "rehearsal/escaping.h"

namespace rehearsal {

std::string secondsText(platform::Instant instant) {
  return std::to_string(instant.count() / 1000) + "." + platform::zeroPadded(instant.count() % 1000, 3);
}

const std::vector<std::string>& Journal::kinds() {
  static const std::vector<std::string> all{"prompt", "file",   "media", "level", "dialog",   "shell",
                                            "saver",  "master", "print", "fault", "clipboard"};
  return all;
}

void Journal::write(std::string_view kind, const std::vector<std::string_view>& fields) {
  if (!keeps_) return;
  Line line{std::string(kind), secondsText(clock_.now()) + "\t" + std::string(kind)};
  for (const std::string_view field : fields) line.text += "\t" + escaped(field);
  lines_.push_back(std::move(line));
}

void Journal::writeState(std::string_view kind, const std::string& state) {
  std::string& last = states_[std::string(kind)];
  if (last == state) return;
  last = state;
  write(kind, {state});
}

void Journal::print(std::ostream& out, std::string_view kind) {
  const auto printed = [&](const Line& line) { return kind.empty() || line.kind == kind; };
  for (const Line& line : lines_) {
    if (printed(line)) out << line.text << '\n';
  }
  std::erase_if(lines_, printed);
}

}  // namespace rehearsal
