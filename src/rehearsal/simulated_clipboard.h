// A clipboard that writes what the program copies to the journal.
#pragma once

#include "platform/clipboard.h"
#include "rehearsal/journal.h"

namespace rehearsal {

class SimulatedClipboard final : public platform::Clipboard {
 public:
  explicit SimulatedClipboard(Journal& journal) : journal_(journal) {}

  std::string text() override { return text_; }
  void setText(const std::string& text) override {
    text_ = text;
    journal_.write("clipboard", {text});
  }
  // Another program copies something.
  void fill(const std::string& text) { text_ = text; }

 private:
  Journal& journal_;
  std::string text_;
};

}  // namespace rehearsal
