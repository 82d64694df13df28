#include "rehearsal/simulated_printer.h"

namespace rehearsal {

void SimulatedPrinter::paintPicture(const platform::PageGrid& grid, int left, int top) {
  journal_.write("print", {"PaintPicture", std::to_string(left), std::to_string(top)});
  for (const auto& row : grid.rows) {
    std::vector<std::string_view> fields{"row"};
    fields.insert(fields.end(), row.cells.begin(), row.cells.end());
    journal_.write("print", fields);
  }
}

}  // namespace rehearsal
