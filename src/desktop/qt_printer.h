// Paper from the system's printer, each document a job of its own; without a printer, one PDF file of all
// documents, whose name the rider is asked for.
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
  // `onPage` is called as each page is begun, so that the rider can be shown how far it is.
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
  // The page to draw on, made at its first use; false where the rider gave no file for it.
  bool page();
  [[nodiscard]] bool askForFile();
  void beginPaper();
  void close();  // what is open goes to the printer, or to the file
  void drop();   // what is still open is left as it is
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
  bool declined_ = false;   // the rider wants no file: nothing is drawn until all is finished
  bool pageEnded_ = false;  // the next document begins on a new page of the file
  double bottom_ = 0;       // of what stands on the page
};

}  // namespace desktop
