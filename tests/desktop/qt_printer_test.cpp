#include "desktop/qt_printer.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "platform/fault.h"
#include "widgets/page_painter.h"
#include "widgets/qt_text.h"

namespace desktop {

using widgets::paintGrid;
using widgets::paintLine;
using widgets::toQt;

namespace {

platform::PageGrid gridOf(int rows) {
  platform::PageGrid grid;
  for (const int width : {500, 3500, 2000, 1200, 1500, 1500, 1200, 900, 1835, 2000, 300, 1000}) {
    grid.columns.push_back({"Le Nom de la Séance", width, platform::CellPlace::Centre});
  }
  grid.headHeight = 600;
  grid.kindColumn = 2;
  for (int row = 1; row <= rows; ++row) {
    const std::string name = "Une séance au nom si long qu'il ne peut tenir dans sa cellule, même en petit";
    grid.rows.push_back(
        {row == 1 ? 600 : 315,
         {std::to_string(row), name, "Augmentation Progressive", "80 à 90", "Grand Plateau", "Petit Braquet",
          "-----", "-----", "00:10:00", "Annonce du 16 11 26 à 20 31 05.wav", "x", "132-75 %"}});
  }
  return grid;
}

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
    printer.paintPicture(gridOf(rows), 0, 0);
    printer.printLine("Edité Le(16/11/2026) à (07:00:00) Page (1/1)");
    printer.endDocument();
  }
  printer.finish();
}

// These run where there is no printer.
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
  EXPECT_EQ(pdf.count("/MediaBox [0 0 842"), 3);  // A4, lying

  printer.paintPicture(gridOf(2), 0, 0);  // and breaks off
  printer.killDocument();
  EXPECT_FALSE(QFile::exists(toQt(path)));
  EXPECT_EQ(dialogs.asked, 2);

  dialogs.chosen.clear();  // the rider wants none
  printPages(printer, {2, 2});
  EXPECT_EQ(dialogs.asked, 3);

  dialogs.chosen = {"/nonexistent/liste.pdf"};
  EXPECT_THROW(printPages(printer, {2}), platform::FileFault);
  EXPECT_EQ(dialogs.told, 2);
  dialogs.chosen = {"/dev/full"};  // is there already, and takes nothing
  EXPECT_THROW(printPages(printer, {35, 35, 1}), platform::FileFault);
  EXPECT_EQ(dialogs.told, 4);
}

TEST(PagePainter, StaysInsideThePageAndItsCells) {
  QImage paper(1654, 1169, QImage::Format_RGB32);  // A4 at 142 dots an inch
  paper.setDotsPerMeterX(5591);
  paper.setDotsPerMeterY(5591);
  for (const int rows : {1, 35}) {
    paper.fill(Qt::white);
    QPainter painter(&paper);
    const QRectF area(40, 40, 1574, 1089);
    const double bottom = paintGrid(painter, area, gridOf(rows), true);
    const double end = paintLine(painter, area, bottom, QStringLiteral("Edité Le(16/11/2026)"));
    painter.end();
    EXPECT_LE(end, area.bottom()) << rows;
    int outside = 0;
    int coloured = 0;
    for (int y = 0; y < paper.height(); ++y) {
      for (int x = 0; x < paper.width(); ++x) {
        const QColor dot = paper.pixelColor(x, y);
        if (dot != Qt::white && !area.adjusted(-2, -2, 2, 2).contains(x, y)) ++outside;
        if (dot.saturation() > 100) ++coloured;
      }
    }
    EXPECT_EQ(outside, 0) << rows;
    EXPECT_GT(coloured, 100 * rows);
  }
}

}  // namespace
}  // namespace desktop
