// A printer that writes to the journal: a line for each operation, and the rows of each page below its
// picture.
#pragma once

#include "platform/printer.h"
#include "rehearsal/journal.h"

namespace rehearsal {

class SimulatedPrinter final : public platform::Printer {
 public:
  explicit SimulatedPrinter(Journal& journal) : journal_(journal) {}

  void setOrientation(platform::PageOrientation orientation) override {
    journal_.write("print", {"Orientation",
                             orientation == platform::PageOrientation::Landscape ? "landscape" : "portrait"});
  }
  void setColourMode(platform::ColourMode mode) override {
    journal_.write("print", {"ColorMode", std::to_string(static_cast<int>(mode))});
  }
  void setPaperSize(platform::PaperSize) override { journal_.write("print", {"PaperSize", "A4"}); }
  void setQuality(platform::PrintQuality quality) override {
    journal_.write("print", {"PrintQuality", quality == platform::PrintQuality::High ? "high" : "draft"});
  }
  void paintPicture(const platform::PageGrid& grid, int left, int top) override;
  void printLine(const std::string& line) override { journal_.write("print", {"Print", line}); }
  void endDocument() override { journal_.write("print", {"EndDoc"}); }
  void killDocument() override { journal_.write("print", {"KillDoc"}); }
  void finish() override {}

 private:
  Journal& journal_;
};

}  // namespace rehearsal
