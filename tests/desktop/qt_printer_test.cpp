#include "desktop/qt_printer.h"

#include <gtest/gtest.h>

#include <QFile>

#include "desktop/page_grid.h"
#include "platform/fault.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::toQt;

namespace {

struct FileDialogs final : platform::Dialogs {
  std::vector<std::string> chosen;
  int asked = 0;
  int told = 0;
  platform::Answer message(const platform::Message&) override { return ++told, platform::Answer::Ok; }
  std::vector<std::string> chooseFiles(const platform::FileRequest&) override { return ++asked, chosen; }
};

void printPages(QtPrinter& printer, std::initializer_list<int> pages) {
  for (const int rows : pages) {
    printer.setOrientation(platform::PageOrientation::Landscape);
    printer.setColourMode(platform::ColourMode::Colour);
    printer.setQuality(platform::PrintQuality::High);
    printer.paintPicture(support::pageGrid(rows), 0, 0);
    printer.printLine("Edité Le(16/11/2026) à (07:00:00) Page (1/1)");
    printer.endDocument();
  }
  printer.finish();
}

// The machines that run the tests have no printer.
TEST(QtPrinter, GathersAllPagesInOneFileThatTheRiderNames) {
  FileDialogs dialogs;
  const std::string path = testing::TempDir() + "/liste.pdf";
  QFile::remove(toQt(path));
  dialogs.chosen = {path};
  int begun = 0;
  QtPrinter printer(dialogs, [&] { ++begun; });
  printPages(printer, {35, 35, 1});
  EXPECT_EQ(dialogs.asked, 1);
  EXPECT_EQ(begun, 3);
  QFile file(toQt(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray pdf = file.readAll();
  EXPECT_EQ(pdf.count("/Type /Page\n"), 3);
  EXPECT_EQ(pdf.count("/MediaBox [0 0 842"), 3);  // A4, landscape

  printer.paintPicture(support::pageGrid(2), 0, 0);  // and breaks off
  printer.killDocument();
  EXPECT_FALSE(QFile::exists(toQt(path)));
  EXPECT_EQ(dialogs.asked, 2);

  dialogs.chosen.clear();  // the rider names none
  printPages(printer, {2, 2});
  EXPECT_EQ(dialogs.asked, 3);

  dialogs.chosen = {"/nonexistent/liste.pdf"};
  EXPECT_THROW(printPages(printer, {2}), platform::FileFault);
  EXPECT_EQ(dialogs.told, 2);
  dialogs.chosen = {"/dev/full"};  // exists already, and is always full
  EXPECT_THROW(printPages(printer, {35, 35, 1}), platform::FileFault);
  EXPECT_EQ(dialogs.told, 4);
}

}  // namespace
}  // namespace desktop
