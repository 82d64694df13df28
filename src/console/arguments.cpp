#include "console/arguments.h"

#include <charconv>
#include <utility>

#include "rehearsal/escaping.h"

namespace console {
namespace {

constexpr std::string_view blanks = " \t\r";

template <class Number>
Number parsed(const std::string& word, std::string_view what) {
  Number value{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc{} || end != word.data() + word.size()) {
    throw CommandError("\"" + word + "\" is no " + std::string(what));
  }
  return value;
}

}  // namespace

void Arguments::skipBlanks() {
  const std::size_t first = rest_.find_first_not_of(blanks);
  rest_.remove_prefix(first == std::string_view::npos ? rest_.size() : first);
}

std::string Arguments::word(std::string_view what) {
  if (rest_.empty()) throw CommandError("missing " + std::string(what));
  const std::size_t size = std::min(rest_.find_first_of(blanks), rest_.size());
  std::string taken(rest_.substr(0, size));
  rest_.remove_prefix(size);
  skipBlanks();
  return taken;
}

int Arguments::number(std::string_view what) {
  return parsed<int>(word(what), what);
}

double Arguments::decimal(std::string_view what) {
  return parsed<double>(word(what), what);
}

bool Arguments::flag(std::string_view what) {
  const std::string taken = word(what);
  if (taken != "0" && taken != "1") throw CommandError("\"" + taken + "\" is neither 0 nor 1");
  return taken == "1";
}

std::string Arguments::text() {
  std::string_view taken = rest_;
  rest_ = {};
  const std::size_t last = taken.find_last_not_of(blanks);
  taken = taken.substr(0, last == std::string_view::npos ? 0 : last + 1);
  if (taken.size() >= 2 && taken.front() == '"' && taken.back() == '"') {
    taken = taken.substr(1, taken.size() - 2);
  }
  return rehearsal::unescaped(taken);
}

std::string_view Arguments::rest() {
  return std::exchange(rest_, {});
}

void Arguments::end() const {
  if (!rest_.empty()) throw CommandError("too many words: \"" + std::string(rest_) + "\"");
}

}  // namespace console
