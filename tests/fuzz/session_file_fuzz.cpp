// Any bytes as a session file, present or old: rows or a fault, thirteen cells a row, and never more rows
// than the header can ask for.
#include "forms/creer_cycle.h"
#include "fuzz/check.h"
#include "model/grid_rows.h"
#include "model/session_file.h"
#include "platform/fault.h"
#include "support/memory_file_system.h"

namespace {

void load(support::MemoryFileSystem& files, const std::string& path) {
  forms::CreerCycle form;
  platform::Grid& grid = form.ListView1;
  for (auto& column : model::gridColumns(false)) grid.addColumn(column);
  grid.addRow(model::firstRow());
  grid.addRow(model::handMadeRow(2, "-----"));
  try {
    model::ajouterSeance(files, path, grid);
  } catch (const platform::Fault&) {
    fuzz::check(grid.rowCount() == 2, "a damaged file leaves the list");
    return;
  }
  fuzz::check(grid.text(1, model::column::sessionName) == "Nouvelle Séance", "the first row stays");
  fuzz::check(grid.text(grid.rowCount(), model::columnCount + 1).empty(), "thirteen cells a row");
  // What was read is the same after writing and reading it again.
  model::ecrireSeance(files, "/d/again.tq2", grid);
  const int sequences = model::lireEnTete(files, "/d/again.tq2").nbEnreg - 1;
  const int before = grid.rowCount();
  model::ajouterSeance(files, "/d/again.tq2", grid);
  fuzz::check(grid.rowCount() - before <= sequences, "one pass of what was written");
  int row = 2;
  for (int copy = before + 1; copy <= grid.rowCount(); ++copy, ++row) {
    while (!model::isSequence(grid, row)) ++row;
    for (const int column : {model::column::sequence, model::column::cadence, model::column::duration}) {
      fuzz::check(grid.text(copy, column) == grid.text(row, column), "a cell survives the file");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  support::MemoryFileSystem files;
  files.put("/d/any.tq2", std::string(data, data + size));
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
