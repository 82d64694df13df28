// Prints each document as a job on the system's printer; without a printer, all documents go into one PDF
// file, whose name the rider is asked for. Failures are told to the rider and thrown as platform::FileFault.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <functional>
#include <memory>

#include "platform/dialogs.h"
#include "platform/printer.h"

namespace desktop {

class QtPrinter final : public platform::Printer {
 public:
  // `onPage` is called at the beginning of each page, to show the rider the progress.
  explicit QtPrinter(
      platform::Dialogs& dialogs, std::function<void()> onPage = [] {})
      : dialogs_(dialogs), onPage_(std::move(onPage)) {}
  ~QtPrinter() override;

  void setOrientation(platform::PageOrientation orientation) override { orientation_ = orientation; }
  void setColourMode(platform::ColourMode mode) override { mode_ = mode; }
  void setPaperSize(platform::PaperSize) override {}  // A4, always
  void setQuality(platform::PrintQuality quality) override { quality_ = quality; }
  void paintPicture(const platform::PageGrid& grid, int left, int top) override;
  void printLine(const std::string& line) override;
  void endDocument() override;
  void killDocument() override;
  void finish() override;

 private:
  // Makes the page to draw on at its first use; false if the rider gave no file for it.
  bool page();
  [[nodiscard]] bool askForFile();
  void beginPaper();
  void close();  // sends what is open to the printer, or to the file
  void drop();   // gives up what is open
  [[noreturn]] void fail(const char* reason);
  [[nodiscard]] QRectF area() const;

  platform::Dialogs& dialogs_;
  std::function<void()> onPage_;
  platform::PageOrientation orientation_ = platform::PageOrientation::Landscape;
  platform::ColourMode mode_ = platform::ColourMode::Colour;
  platform::PrintQuality quality_ = platform::PrintQuality::High;
  std::unique_ptr<QPrinter> printer_;
  QPainter painter_;
  QString file_;            // the PDF file; empty on paper
  bool declined_ = false;   // the rider wants no file: nothing is drawn until finish()
  bool pageEnded_ = false;  // the next document begins on a new page of the file
  double bottom_ = 0;       // of what is on the page, in dots
};

}  // namespace desktop
