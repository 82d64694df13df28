#include "rehearsal/scripted_dialogs.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <utility>

#include "platform/text.h"

namespace rehearsal {
namespace {

using platform::Answer;
using platform::FilePurpose;
using platform::MessageButtons;

struct Word {
  std::string_view word;
  Answer answer;
  std::array<bool, 3> offered;  // by MessageButtons
};

constexpr std::array<Word, 4> words{{
    {"ok", Answer::Ok, {true, true, false}},
    {"cancel", Answer::Cancel, {false, true, true}},
    {"yes", Answer::Yes, {false, false, true}},
    {"no", Answer::No, {false, false, true}},
}};

const Word* offeredWord(std::string_view word, MessageButtons buttons) {
  const auto* found = std::find_if(words.begin(), words.end(), [&](const Word& w) {
    return w.word == word && w.offered.at(static_cast<std::size_t>(buttons));
  });
  return found == words.end() ? nullptr : found;
}

bool isWord(const std::string& text) {
  return std::any_of(words.begin(), words.end(), [&](const Word& w) { return w.word == text; });
}

const char* journalWord(FilePurpose purpose) {
  switch (purpose) {
    case FilePurpose::Save:
      return "save";
    case FilePurpose::Folder:
      return "folder";
    default:
      return "open";
  }
}

std::string chosenPath(const std::string& answer, const platform::FileRequest& request) {
  std::filesystem::path path(
      request.purpose == FilePurpose::Save ? platform::withSuffix(answer, request.filter) : answer);
  if (path.is_relative()) path = std::filesystem::path(request.folder) / path;
  return std::filesystem::absolute(path).lexically_normal().string();
}

}  // namespace

std::string ScriptedDialogs::next(const std::string& otherwise,
                                  const std::function<bool(const std::string&)>& fits,
                                  const std::string& title) {
  if (answers_.empty()) return otherwise;
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  if (fits(answer)) return answer;
  if (misfit_) misfit_("the dialog \"" + title + "\" cannot be answered \"" + answer + "\"");
  return otherwise;
}

Answer ScriptedDialogs::message(const platform::Message& message) {
  const std::string answer = next(
      message.buttons == MessageButtons::Ok ? "ok" : "cancel",
      [&](const std::string& word) { return offeredWord(word, message.buttons) != nullptr; }, message.title);
  journal_.write("dialog", {"message", message.title, message.text, answer});
  return offeredWord(answer, message.buttons)->answer;
}

std::optional<int> ScriptedDialogs::askNumber(const platform::NumberRequest& request) {
  const auto numberOf = [&](const std::string& word) -> std::optional<int> {
    if (word == "ok") return request.proposed;
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = error == std::errc{} && end == word.data() + word.size();
    if (!whole || number < request.least || number > request.most) return std::nullopt;
    return number;
  };
  const std::string answer = next(
      "cancel", [&](const std::string& word) { return word == "cancel" || numberOf(word); }, request.title);
  journal_.write("dialog", {"number", request.title, request.text, answer});
  return numberOf(answer);
}

std::vector<std::string> ScriptedDialogs::chooseFiles(const platform::FileRequest& request) {
  const bool proposes = request.purpose == FilePurpose::Save && !request.proposedName.empty();
  const std::string answer = next(
      "cancel",
      [&](const std::string& word) {
        return !word.empty() && (word == "cancel" || !isWord(word) || (word == "ok" && proposes));
      },
      request.title);
  journal_.write("dialog", {journalWord(request.purpose), request.title, request.proposedName, answer});
  if (answer == "cancel") return {};
  if (answer == "ok") return {chosenPath(request.proposedName, request)};
  if (request.purpose != FilePurpose::OpenSeveral) return {chosenPath(answer, request)};
  std::vector<std::string> paths;
  for (const std::string& one : platform::split(answer, '|')) paths.push_back(chosenPath(one, request));
  return paths;
}

}  // namespace rehearsal
