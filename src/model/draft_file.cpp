#include "model/draft_file.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "model/grid_rows.h"
#include "model/session_file.h"
#include "platform/fault.h"
#include "platform/whole_file.h"

namespace model {
namespace {

// The lines of the text: a word, then values parted by tabs.
constexpr std::string_view firstLine = "brouillon 1";
constexpr std::string_view keptWord = "le";
constexpr std::string_view titleWord = "titre";
constexpr std::string_view captionsWord = "textes";
constexpr std::string_view rowWord = "ligne";
constexpr std::string_view lastWord = "fin";  // with the number of rows

constexpr std::uint64_t longestText = 64 * 1024 * 1024;  // bytes; no list comes near it

void appendEscaped(std::string& line, std::string_view text) {
  for (const char c : text) {
    if (c == '\\')
      line += "\\\\";
    else if (c == '\t')
      line += "\\t";
    else if (c == '\n')
      line += "\\n";
    else
      line += c;
  }
}

template <class Values>
void appendLine(std::string& text, std::string_view word, const Values& values) {
  text += word;
  for (const auto& value : values) {
    text += '\t';
    appendEscaped(text, value);
  }
  text += '\n';
}

std::string unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (!escape) {
      plain += text[i];
      continue;
    }
    ++i;
    plain += text[i] == 't' ? '\t' : text[i] == 'n' ? '\n' : text[i];
  }
  return plain;
}

// The values of the next line if it begins with that word; the line is cut off then.
std::optional<std::vector<std::string>> cutLine(std::string_view& text, std::string_view word) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos || !text.starts_with(word)) return std::nullopt;
  std::string_view line = text.substr(word.size(), end - word.size());
  if (!line.empty() && line.front() != '\t') return std::nullopt;
  std::vector<std::string> values;
  while (!line.empty()) {
    line.remove_prefix(1);
    const std::size_t length = std::min(line.find('\t'), line.size());
    values.push_back(unescaped(line.substr(0, length)));
    line.remove_prefix(length);
  }
  text.remove_prefix(end + 1);
  return values;
}

std::optional<long long> numberIn(const std::optional<std::vector<std::string>>& values) {
  if (!values || values->size() != 1) return std::nullopt;
  const std::string& text = values->front();
  long long number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string textOf(const Draft& draft) {
  std::string text(firstLine);
  text += '\n';
  appendLine(text, keptWord, std::array{std::to_string(draft.kept.time_since_epoch().count())});
  appendLine(text, titleWord, std::array{draft.sessionTitle});
  appendLine(text, captionsWord, draft.captions);
  for (const platform::Grid::Cells& row : draft.rows) appendLine(text, rowWord, row);
  appendLine(text, lastWord, std::array{std::to_string(draft.rows.size())});
  return text;
}

std::optional<Draft> parse(std::string_view text) {
  if (!cutLine(text, firstLine)) return std::nullopt;
  const auto kept = numberIn(cutLine(text, keptWord));
  const auto title = cutLine(text, titleWord);
  const auto captions = cutLine(text, captionsWord);
  Draft draft;
  if (!kept || !title || title->size() != 1 || !captions || captions->size() != draft.captions.size())
    return std::nullopt;
  draft.kept = platform::LocalTime{std::chrono::milliseconds(*kept)};
  draft.sessionTitle = title->front();
  std::copy(captions->begin(), captions->end(), draft.captions.begin());
  while (auto row = cutLine(text, rowWord)) {
    if (row->size() != columnCount) return std::nullopt;
    draft.rows.push_back(std::move(*row));
  }
  const auto count = numberIn(cutLine(text, lastWord));
  if (!count || static_cast<std::size_t>(*count) != draft.rows.size() || !text.empty()) return std::nullopt;
  return draft;
}

}  // namespace

void writeDraft(platform::FileSystem& files, const std::string& path, const Draft& draft,
                const platform::Grid& grid) {
  platform::WholeFile file(files, path, platform::WholeFile::Start::Empty);
  writeSession(file, grid);
  file.writeAt(file.size(), textOf(draft));
  file.commit();
}

std::optional<Draft> readDraft(platform::FileSystem& files, const std::string& path) {
  const std::uint64_t records = sizeOfSession(lireEnTete(files, path));
  const auto file = files.open(path, platform::OpenMode::Read);
  const std::uint64_t size = file->size();
  if (size <= records || size - records > longestText) return std::nullopt;
  std::string text(size - records, '\0');
  if (file->readAt(records, text) < text.size()) return std::nullopt;
  return parse(text);
}

}  // namespace model
