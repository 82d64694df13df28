// Dialogs that are answered ahead of time.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "rehearsal/journal.h"

namespace rehearsal {

// With no answer queued, a message with OK alone is answered "ok" and all else "cancel".
class ScriptedDialogs final : public platform::Dialogs {
 public:
  explicit ScriptedDialogs(Journal& journal) : journal_(journal) {}

  // "ok", "cancel", "yes", "no", or for a file dialog one or several paths parted by '|';
  // for a number its digits.
  void queue(std::string answer) { answers_.push_back(std::move(answer)); }
  // Called with a text about an answer that did not suit its dialog and was dropped.
  void onMisfit(std::function<void(const std::string&)> told) { misfit_ = std::move(told); }

  platform::Answer message(const platform::Message& message) override;
  std::vector<std::string> chooseFiles(const platform::FileRequest& request) override;
  std::optional<int> askNumber(const platform::NumberRequest& request) override;

 private:
  std::string next(const std::string& otherwise, const std::function<bool(const std::string&)>& fits,
                   const std::string& title);

  Journal& journal_;
  std::deque<std::string> answers_;
  std::function<void(const std::string&)> misfit_;
};

}  // namespace rehearsal
