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

// The part of a list that goes on one page, on white ground: a head, and rows of cells below it. Lengths are
// in twips, but only their proportions count: the printer scales the whole to the page.
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
  int kindColumn = -1;    // its cells name kinds of effort, which a printer may colour; from 0, -1: none
};

// Any operation may throw a platform::Fault, OutOfMemory among them.
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
  virtual void killDocument() = 0;  // discards the document that is not ended yet
  // No document follows for now: a printer that gathers them in one file closes it.
  virtual void finish() = 0;
};

}  // namespace platform
