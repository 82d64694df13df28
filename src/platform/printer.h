// Paper, page by page.
#pragma once

#include <string>
#include <vector>

namespace platform {

enum class PageOrientation { Portrait = 1, Landscape = 2 };
enum class ColourMode { Monochrome = 1, Colour = 2 };
enum class PaperSize { A4 };
enum class PrintQuality { Draft, High };

enum class CellPlace { Left, Centre, CentreBottom };

// A piece of a list as it is to stand on paper, on white ground: a head, and rows of cells below it.
// Lengths are in twips and say how the parts stand to one another; the printer fits the whole to the page.
struct PageGrid {
  struct Column {
    std::string head;
    int width = 0;
    CellPlace headPlace = CellPlace::Centre;
  };
  struct Row {
    int height = 0;
    std::vector<std::string> cells;
  };
  std::vector<Column> columns;
  int headHeight = 0;
  std::vector<Row> rows;  // their cells are centred
  int kindColumn = -1;    // the cells that name kinds of effort, which a printer may mark with their colours
};

// A fault (platform::OutOfMemory among them) may come from any operation.
class Printer {
 public:
  virtual ~Printer() = default;
  // How the next document is to come out.
  virtual void setOrientation(PageOrientation orientation) = 0;
  virtual void setColourMode(ColourMode mode) = 0;
  virtual void setPaperSize(PaperSize size) = 0;
  virtual void setQuality(PrintQuality quality) = 0;
  virtual void paintPicture(const PageGrid& grid, int left, int top) = 0;
  virtual void printLine(const std::string& line) = 0;  // below what stands on the page
  virtual void endDocument() = 0;
  virtual void killDocument() = 0;  // what is not ended yet is never printed
  // No document follows for now: a printer that gathers them in one file closes it.
  virtual void finish() = 0;
};

}  // namespace platform
