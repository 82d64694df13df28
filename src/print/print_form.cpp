#include "print/print_form.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

#include "model/grid_rows.h"
#include "model/time_value.h"
#include "platform/fault.h"
#include "platform/text.h"

namespace print {
namespace {

constexpr int tallRow = 600;   // twips: the head and the first row
constexpr int plainRow = 315;  // twips

struct HeadCell {
  const char* text;
  int width;  // twips
  platform::CellPlace place;
};

// The last three columns (announcement, delete mark, heart rate) get no head, and the width that they need.
constexpr std::array<HeadCell, 12> headCells{{
    {"N°", 500, platform::CellPlace::CentreBottom},
    {"Le Nom de la Séance", 3500, platform::CellPlace::CentreBottom},
    {"Nom de la Séquence", 2000, platform::CellPlace::Centre},
    {"Cadence", 1200, platform::CellPlace::Centre},
    {"Plateau", 1500, platform::CellPlace::Left},
    {"Braquet", 1500, platform::CellPlace::Centre},
    {"Rép O/N", 1200, platform::CellPlace::Centre},
    {"NB Fois", 900, platform::CellPlace::Centre},
    {"Durée H:M:S", 1835, platform::CellPlace::Centre},
    {"", 2000, platform::CellPlace::Left},
    {"", 300, platform::CellPlace::Left},
    {"", 1000, platform::CellPlace::Left},
}};

constexpr int kindColumn = 2;

// How many steps of `step` it takes to reach `last`.
int stepsTo(int last, int step) {
  return (last + step - 1) / step;
}

// "16/11/2026"
std::string dateOf(platform::LocalTime now) {
  const std::chrono::year_month_day date{std::chrono::floor<std::chrono::days>(now)};
  return platform::zeroPadded(unsigned{date.day()}, 2) + "/" +
         platform::zeroPadded(unsigned{date.month()}, 2) + "/" + std::to_string(int{date.year()});
}

std::string timeOf(platform::LocalTime now) {
  const auto sinceMidnight = now - std::chrono::floor<std::chrono::days>(now);
  return model::formatSeconds(std::chrono::floor<std::chrono::seconds>(sinceMidnight).count());
}

}  // namespace

platform::PageGrid pageFrom(const forms::ImprimerTQ1& form, int firstRow) {
  platform::PageGrid page;
  page.headHeight = tallRow;
  page.kindColumn = kindColumn;
  for (const HeadCell& cell : headCells) page.columns.push_back({cell.text, cell.width, cell.place});
  // A grid cannot be scrolled beyond its last row.
  const int top = std::min(firstRow, form.Grid.rowCount());
  const int bottom = std::min(top + rowsPerPage - 1, form.Grid.rowCount());
  for (int row = top; row <= bottom; ++row) {
    platform::PageGrid::Row& line = page.rows.emplace_back();
    line.height = row == 1 ? tallRow : plainRow;
    for (int column = 1; column <= form.Grid.columnCount(); ++column) {
      line.cells.push_back(form.Grid.text(row, column));
    }
  }
  return page;
}

PrintForm::PrintForm(const context::Context& context)
    : context_(context), print_(context.screens.print), printer_(context.outside.printer) {
  print_.onLoad.handle([this] { prepare(); });
  context_.screens.editor.Command35.click.handle([this] { open(); });
  context_.screens.editor.mnImprim.click.handle([this] { open(); });
  platform::once(print_.Timer1, [this] { print_.Command2.click(); });
  print_.Command1.click.handle([this] { printList(); });
  print_.Command2.click.handle([this] { loadList(); });
  print_.Command3.click.handle([this] { print_.unload(); });
  print_.MyButton1.click.handle([this] {
    print_.MyButton2.visible = false;
    print_.Command1.click();
    leave();
  });
  print_.MyButton2.click.handle([this] {
    printer_.killDocument();
    leave();
  });
  print_.Command34.click.handle([this] { print_.MyButton2.click(); });
  const auto exclude = [](platform::Option& chosen, platform::Option& other) {
    chosen.click.handle([&chosen, &other] {
      if (chosen.value) other.value = false;
    });
  };
  exclude(print_.Option1, print_.Option2);
  exclude(print_.Option2, print_.Option1);
  print_.Label1.click.handle([this] { print_.Option1.value = true; });
}

// The form opens each time as if it were new.
void PrintForm::prepare() {
  print_.MyFrame1.caption = "";
  print_.ProgressBar1.visible = false;
  print_.MyButton2.visible = true;
  print_.Option1.value = true;
}

void PrintForm::open() {
  print_.show();
  print_.Timer1.enabled = true;
}

void PrintForm::leave() {
  print_.Grid.clearRows();
  print_.Command3.click();
}

void PrintForm::loadList() {
  const platform::Grid& list = context_.screens.editor.ListView1;
  const int rows = list.rowCount();
  if (rows < 1) return;
  print_.Grid.clearRows();
  print_.Grid.clearColumns();
  for (const HeadCell& cell : headCells) {
    print_.Grid.addColumn({cell.text, cell.width, platform::Alignment::Centre});
  }
  for (int row = 1; row <= rows; ++row) loadRow(row);
  print_.MyFrame1.caption = std::to_string(stepsTo(rows, rowsPerPage)) + " page(s) à Imprimer";
}

// Without the cycle's name; the number of each row is that of the one above it.
void PrintForm::loadRow(int row) {
  const platform::Grid& list = context_.screens.editor.ListView1;
  std::vector<std::string> cells{row == 1 ? " " : list.text(row - 1, model::column::number)};
  for (int column = model::column::sessionName; column <= list.columnCount(); ++column) {
    cells.push_back(list.text(row, column));
  }
  print_.Grid.addRow(std::move(cells));
}

void PrintForm::printList() {
  print_.ProgressBar1.visible = true;
  print_.ProgressBar1.value = 0;
  page_ = 0;
  // The head counts as a row, so a list of 35 rows makes two pages.
  pages_ = stepsTo(gridRows(), rowsPerPage);
  try {
    for (int row = 1; row <= gridRows(); row += rowsPerPage) {
      ++page_;
      print_.MyFrame1.caption =
          "Impression de " + std::to_string(page_) + "/" + std::to_string(pages_) + " page(s)";
      print_.ProgressBar1.value = static_cast<int>(std::lround(100 - 100.0 / page_));
      if (gridRows() == 1) break;
      printPage(row);
    }
    printer_.finish();
  } catch (const platform::OutOfMemory&) {
    giveUp(true);
  } catch (const std::bad_alloc&) {
    giveUp(true);
  } catch (const platform::Fault&) {
    giveUp(false);
  }
}

void PrintForm::printPage(int firstRow) {
  print_.Grid.reveal(firstRow);
  printer_.setOrientation(platform::PageOrientation::Landscape);
  if (print_.Option1.value) printer_.setColourMode(platform::ColourMode::Colour);
  if (print_.Option2.value) printer_.setColourMode(platform::ColourMode::Monochrome);
  printer_.setPaperSize(platform::PaperSize::A4);
  printer_.setQuality(platform::PrintQuality::High);
  printer_.paintPicture(pageFrom(print_, firstRow), 0, 0);
  const platform::LocalTime now = context_.loop.clock().localTime();
  printer_.printLine("Edité Le(" + dateOf(now) + ") à (" + timeOf(now) + ") Page (" + std::to_string(page_) +
                     "/" + std::to_string(pages_) + ")");
  printer_.endDocument();
}

// Discards the page that broke off, or it would be printed with the next document.
void PrintForm::giveUp(bool tooLarge) {
  printer_.killDocument();
  if (tooLarge) {
    context_.outside.dialogs.message({platform::MessageKind::Exclamation, platform::MessageButtons::Ok,
                                      "Dépassement de Capacité...",
                                      "Cette Sélection est trop volumineuse (" + std::to_string(pages_) +
                                          " pages) pour l'envoyer à l'Impression..."});
  }
  print_.Grid.clearRows();
}

}  // namespace print
