// Any bytes as a session file, present or old: rows or a fault, thirteen cells a row, and never more rows
// than the header can ask for.
#include <algorithm>

#include "fuzz/check.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "platform/fault.h"
#include "platform/form.h"
#include "rehearsal/memory_file_system.h"

namespace {

struct List {
  List() {
    for (auto& column : model::gridColumns(false)) grid.addColumn(column);
    grid.addRow(model::firstRow());
    grid.addRow(model::handMadeRow(2, "-----"));
  }
  platform::Form form{"List"};  // the grid alone: a whole editor takes fifty times as long to make
  platform::Grid grid{form, "ListView1"};
};

void load(rehearsal::MemoryFileSystem& files, const std::string& path) {
  List list;
  platform::Grid& grid = list.grid;
  try {
    model::ajouterSeance(files, path, grid);
  } catch (const platform::Fault&) {
    fuzz::check(grid.rowCount() == 2, "a damaged file leaves the list");
    return;
  }
  fuzz::check(grid.text(1, model::column::sessionName) == "Nouvelle Séance", "the first row stays");
  fuzz::check(grid.text(grid.rowCount(), model::columnCount + 1).empty(), "thirteen cells a row");
  // Whatever was read can be written, and is then read as it was.
  model::ecrireSeance(files, "/d/again.tq2", grid);
  List again;
  model::ajouterSeance(files, "/d/again.tq2", again.grid);
  int row = 1;
  for (int copy = 2; copy <= again.grid.rowCount(); ++copy) {
    do {
      fuzz::check(++row <= grid.rowCount(), "no row comes from nowhere");
    } while (!model::isSequence(grid, row));
    for (const int column : {model::column::sequence, model::column::cadence, model::column::duration}) {
      fuzz::check(again.grid.text(copy, column) == grid.text(row, column), "a cell survives the file");
    }
  }
  while (++row <= grid.rowCount()) fuzz::check(!model::isSequence(grid, row), "no sequence is lost");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  rehearsal::MemoryFileSystem files;
  files.put("/d/any.tq2", std::string(data, data + size));
  // Rows beyond the file's end are all alike, and thousands of them only take time; beyond what a list may
  // have it is refused at once.
  const model::SessionHeader header = model::lireEnTete(files, "/d/any.tq2");
  const double rows = static_cast<double>(header.nbEnreg) * std::max(1, header.fois);
  if (rows > 30 && rows < 30000) return 0;
  load(files, "/d/any.tq2");
  try {
    const std::string converted = model::convertirAncien(files, "/d/any.tq2");
    fuzz::check(files.files.size() <= 2, "the work file is gone");
    load(files, converted);
  } catch (const platform::Fault&) {
    fuzz::check(files.exists("/d/any.tq2"), "what cannot be converted is kept");
  }
  return 0;
}
